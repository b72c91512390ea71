#include "host/admin/date_line.h"

#include <algorithm>
#include <cstddef>
#include <exception>
#include <istream>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <utility>

#include "host/admin/text_escapes.h"

namespace ferrowind::host {
namespace {

using nlohmann::ordered_json;

/// Longer than any question.
constexpr std::size_t kLongestLine = 1000;

std::string Joined(const std::vector<std::string>& words) {
  std::string text;
  for (const std::string& word : words) text.append(text.empty() ? "" : " ").append(word);
  return text;
}

std::string JsonLine(const ordered_json& object) {
  return object.dump(-1, ' ', false, ordered_json::error_handler_t::replace);
}

std::vector<std::string> WordsIn(const std::string& line) {
  constexpr const char* kBlanks = " \t\r";
  std::vector<std::string> words;
  for (std::size_t begin = line.find_first_not_of(kBlanks); begin != std::string::npos;) {
    const std::size_t end = std::min(line.find_first_of(kBlanks, begin), line.size());
    words.push_back(line.substr(begin, end - begin));
    begin = line.find_first_not_of(kBlanks, end);
  }
  return words;
}

/// Blanks apart, which stand between words.
bool IsControl(char character) {
  const auto code = static_cast<unsigned char>(character);
  return (code < ' ' && character != '\t' && character != '\r') || code == 0x7f;
}

std::string TextLine(const DateAnswer& answer) {
  std::string line = answer.text;
  for (std::size_t i = 0; i < answer.passed.size(); ++i) {
    line.append(i == 0 ? " (" : "; ").append(OneLine(answer.passed[i].Text()));
  }
  return answer.passed.empty() ? line : line + ')';
}

}  // namespace

std::optional<std::string> NextDateLine(std::istream& in) {
  std::string line;
  for (char letter = 0; in.get(letter);) {
    if (letter == '\n') return line;
    if (line.size() <= kLongestLine) line += letter;
  }
  return line.empty() ? std::nullopt : std::optional(line);
}

std::string JsonLineOf(const std::vector<std::string>& words, const DateAnswer& answer,
                       const DateAnswering& answering) {
  ordered_json object = {{"question", Joined(words)}, {"answer", answer.text}};
  if (answer.is_number) object["answer"] = std::stoi(answer.text);
  if (!answer.remark.empty()) object["remark"] = answer.remark;
  if (answering.tells_why) {
    object["passed"] = ordered_json::array();
    for (const PassedDay& passed : answer.passed) {
      ordered_json day = {{"date", passed.Date()}, {"closed", ordered_json::array()}};
      for (const PassedDay::Closure& closure : passed.closures) {
        day["closed"].push_back(closure.currency);
        if (!closure.name.empty()) day["names"][closure.currency] = closure.name;
      }
      object["passed"].push_back(std::move(day));
    }
  }
  return JsonLine(object);
}

std::string AnswerDateLine(const std::string& line, const loading::LoadedDays& days,
                           const DateAnswering& answering, AnswerFormat format) {
  const bool is_json = format == AnswerFormat::kJson;
  const std::vector<std::string> words = WordsIn(line.substr(0, kLongestLine));
  try {
    if (line.size() > kLongestLine) {
      throw std::length_error("a question has " + std::to_string(kLongestLine) + " characters at most");
    }
    if (std::ranges::any_of(line, IsControl)) {
      throw std::invalid_argument("a question has no control characters");
    }
    const DateAnswer answer = AnswerDateQuestion(words, days, answering);
    return is_json ? JsonLineOf(words, answer, answering) : TextLine(answer);
  } catch (const std::exception& error) {
    if (is_json) return JsonLine({{"question", Joined(words)}, {"error", error.what()}});
    return "error: " + OneLine(error.what());
  }
}

}  // namespace ferrowind::host
