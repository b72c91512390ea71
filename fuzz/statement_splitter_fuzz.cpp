// Reads the input as a script and as a procedure's source: whatever it is, it is either refused with the line
// named, or the statements lie in the script in their order and split alike when they are put together again.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ferrowind/adapters/sql_script/procedure_source.h"
#include "ferrowind/adapters/sql_script/statement_splitter.h"
#include "ferrowind/platform/values/failure.h"

#include "fuzz/expectation.h"

namespace {

using ferrowind::fuzz::Expect;
using ferrowind::platform::Failure;
using ferrowind::sql_script::ParseProcedureSource;
using ferrowind::sql_script::ProcedureDefinition;
using ferrowind::sql_script::SplitStatements;
using ferrowind::sql_script::Statement;

std::optional<std::vector<Statement>> TrySplit(std::string_view script) {
  try {
    return SplitStatements(script);
  } catch (const Failure& failure) {
    Expect(failure.Description().starts_with("Line "), "a refusal names the line");
    return std::nullopt;
  }
}

void ExpectToLieInTheScript(const std::vector<Statement>& statements, std::string_view script) {
  const char* behind_last = script.data();
  for (const auto& statement : statements) {
    Expect(!statement.text.empty(), "a statement is not empty");
    Expect(statement.text.data() >= behind_last, "statements follow each other");
    behind_last = statement.text.data() + statement.text.size();
    Expect(behind_last <= script.data() + script.size(), "a statement lies in the script");
    const auto lines = std::count(script.data(), statement.text.data(), '\n') + 1;
    Expect(statement.line == static_cast<std::size_t>(lines), "a statement's line is counted right");
  }
}

void ExpectToSplitAlikeAgain(const std::vector<Statement>& statements) {
  std::string joined;
  for (const auto& statement : statements) joined += std::string(statement.text) + ";\n";
  const auto again = TrySplit(joined);
  Expect(again && again->size() == statements.size(), "the statements split again");
  for (std::size_t i = 0; i < statements.size(); ++i) {
    Expect((*again)[i].text == statements[i].text, "a statement stays the same");
  }
}

void TryProcedureSource(std::string_view source) {
  ProcedureDefinition procedure;
  try {
    procedure = ParseProcedureSource(source);
  } catch (const Failure& failure) {
    Expect(failure.Description().starts_with("Line "), "a refusal names the line");
    return;
  }
  Expect(!procedure.name.empty(), "a procedure has a name");
  for (std::size_t i = 0; i < procedure.parameters.size(); ++i) {
    Expect(procedure.parameters[i].position == static_cast<std::int32_t>(i), "parameters are counted");
    Expect(procedure.parameters[i].name.size() > 1, "a parameter has a name");
  }
  const auto statements = TrySplit(procedure.body);
  Expect(statements && !statements->empty(), "a procedure has a statement");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  if (const auto statements = TrySplit(input)) {
    ExpectToLieInTheScript(*statements, input);
    ExpectToSplitAlikeAgain(*statements);
  }
  TryProcedureSource(input);
  return 0;
}
