#include "ferrowind/adapters/sql_script/procedure_source.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "ferrowind/adapters/sql_script/statement_splitter.h"
#include "ferrowind/platform/values/case_fold.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::sql_script {
namespace {

using platform::Failure;
using platform::ParameterDescription;
using platform::ParameterDirection;
using platform::ParameterType;

Failure Malformed(std::size_t line, const std::string& what) {
  return {platform::failure_number::kInvalidArgument,
          "Line " + std::to_string(line) + " of the procedure's source: " + what};
}

std::vector<std::string_view> WordsOf(std::string_view line) {
  constexpr std::string_view kBlanks = " \t\r";
  std::vector<std::string_view> words;
  for (std::size_t start = line.find_first_not_of(kBlanks); start != std::string_view::npos;) {
    const std::size_t end = std::min(line.find_first_of(kBlanks, start), line.size());
    words.push_back(line.substr(start, end - start));
    start = line.find_first_not_of(kBlanks, end);
  }
  return words;
}

std::string_view LineAt(std::string_view source, std::size_t place) {
  return source.substr(place, source.find('\n', place) - place);
}

bool IsName(std::string_view text) {
  return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_';
  });
}

ParameterDescription ReadParameter(const std::vector<std::string_view>& words, std::size_t line) {
  if (words.size() != 4 || words[2].front() != '@' || !IsName(words[2].substr(1))) {
    throw Malformed(line, "a parameter is declared as \"-- parameter @NAME TYPE\"");
  }
  try {
    return {std::string(words[2]), 0, ParameterTypeNamed(words[3]), ParameterDirection::kInput};
  } catch (const Failure& failure) {
    throw Malformed(line, failure.Description());
  }
}

void AddParameter(std::vector<ParameterDescription>& parameters, ParameterDescription parameter,
                  std::size_t line) {
  for (const auto& earlier : parameters) {
    if (platform::CompareIgnoringCase(earlier.name, parameter.name) == 0) {
      throw Malformed(line, "there is a parameter " + parameter.name + " already");
    }
  }
  parameter.position = static_cast<std::int32_t>(parameters.size());
  parameters.push_back(std::move(parameter));
}

}  // namespace

ProcedureDefinition ParseProcedureSource(std::string_view source) {
  std::size_t place = 0;
  std::size_t line = 1;
  const auto words = WordsOf(LineAt(source, place));
  if (words.size() != 4 || words[0] != "--" || words[1] != "procedure" || !IsName(words[2]) ||
      (words[3] != "reads" && words[3] != "writes")) {
    throw Malformed(line, "a procedure is declared as \"-- procedure NAME reads\" or \"... writes\"");
  }
  ProcedureDefinition procedure{std::string(words[2]), words[3] == "writes", {ReturnValueDescription()}, {}};
  const auto next_line = [&] {
    place = std::min(place + LineAt(source, place).size() + 1, source.size());
    ++line;
    return WordsOf(LineAt(source, place));
  };
  for (auto next = next_line(); next.size() >= 2 && next[0] == "--" && next[1] == "parameter";
       next = next_line()) {
    AddParameter(procedure.parameters, ReadParameter(next, line), line);
  }
  procedure.body = source.substr(place);
  if (SplitStatements(procedure.body).empty()) throw Malformed(line, "the procedure has no statement");
  return procedure;
}

ParameterType ParameterTypeNamed(std::string_view name) {
  constexpr std::array kTypes = {ParameterType::kInt16, ParameterType::kInt32, ParameterType::kText,
                                 ParameterType::kDate};
  const auto* const found = std::find_if(kTypes.begin(), kTypes.end(),
                                         [&](ParameterType type) { return platform::NameOf(type) == name; });
  if (found == kTypes.end()) {
    throw Failure(platform::failure_number::kInvalidArgument,
                  "\"" + std::string(name) + "\" is no type of a parameter: int16, int32, text and date are");
  }
  return *found;
}

ParameterDescription ReturnValueDescription() {
  return {"@RETURN_VALUE", 0, ParameterType::kInt32, ParameterDirection::kReturnValue};
}

}  // namespace ferrowind::sql_script
