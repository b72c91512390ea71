#include "ferrowind/platform/values/row_filter_parser.h"

#include <algorithm>
#include <charconv>
#include <compare>
#include <optional>
#include <system_error>
#include <utility>

#include "ferrowind/platform/values/case_fold.h"

namespace ferrowind::platform {
namespace {

/// Bounds the recursion of the parser, so that no text can exhaust the stack.
constexpr std::size_t kDeepestNesting = 100;

constexpr std::string_view kAnd = "and";
constexpr std::string_view kOr = "or";
constexpr std::string_view kNull = "null";

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// Everything beyond ASCII counts as a letter, so that field names of any language need no brackets.
bool IsLetter(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_' ||
         static_cast<unsigned char>(c) >= 0x80;
}

bool IsWord(std::string_view text, std::string_view word) {
  return std::is_eq(CompareIgnoringCase(text, word));
}

bool IsReserved(std::string_view word) {
  return IsWord(word, kAnd) || IsWord(word, kOr) || IsWord(word, kNull);
}

template <typename Number>
std::optional<Number> WholeTextAs(std::string_view text) {
  Number number{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

std::optional<Date> DateIn(std::string_view text) {
  if (text.size() == 10 && text[2] == '/' && text[5] == '/') {
    const std::string month_and_day = std::string(text.substr(0, 2)) + "-" + std::string(text.substr(3, 2));
    return Date::FromIso(std::string(text.substr(6)) + "-" + month_and_day);
  }
  return Date::FromIso(text);
}

void Append(std::vector<std::size_t>& ends, const std::vector<std::size_t>& more) {
  ends.insert(ends.end(), more.begin(), more.end());
}

}  // namespace

std::vector<RowFilterStep> RowFilterParser::Parse() {
  const OpenEnds ends = ParseFilter();
  SkipBlanks();
  if (!AtEnd()) throw NotUnderstood(place_, R"("and", "or" or the end is expected)");
  SetTrueTargets(ends, RowFilterStep::kAccept);
  SetFalseTargets(ends, RowFilterStep::kReject);
  return std::move(steps_);
}

RowFilterParser::OpenEnds RowFilterParser::ParseFilter() {
  OpenEnds ends = ParseConjunction();
  while (TakeWord(kOr)) {
    SetFalseTargets(ends, NextStep());
    OpenEnds right = ParseConjunction();
    Append(ends.if_true, right.if_true);
    ends.if_false = std::move(right.if_false);
  }
  return ends;
}

RowFilterParser::OpenEnds RowFilterParser::ParseConjunction() {
  OpenEnds ends = ParseTerm();
  while (TakeWord(kAnd)) {
    SetTrueTargets(ends, NextStep());
    OpenEnds right = ParseTerm();
    Append(ends.if_false, right.if_false);
    ends.if_true = std::move(right.if_true);
  }
  return ends;
}

RowFilterParser::OpenEnds RowFilterParser::ParseTerm() {
  SkipBlanks();
  const std::size_t opening = place_;
  if (!Take("(")) return ParseComparison();
  if (nesting_ == kDeepestNesting) {
    throw NotUnderstood(opening, "parentheses nest more than " + std::to_string(kDeepestNesting) + " deep");
  }
  ++nesting_;
  OpenEnds ends = ParseFilter();
  SkipBlanks();
  if (!Take(")")) throw NotUnderstood(place_, R"-("and", "or" or ")" is expected)-");
  --nesting_;
  return ends;
}

RowFilterParser::OpenEnds RowFilterParser::ParseComparison() {
  RowFilterStep step;
  step.field = ParseField();
  step.accepted = ParseOperator();
  step.literal = ParseLiteral();
  // NULL has no order: it can only be equal or not.
  const bool asks_order = step.accepted != comparison_outcome::kEqual &&
                          step.accepted != (comparison_outcome::kLess | comparison_outcome::kGreater);
  if (asks_order && std::holds_alternative<std::monostate>(step.literal)) {
    step.accepted = comparison_outcome::kNone;
  }
  const std::size_t position = steps_.size();
  steps_.push_back(std::move(step));
  return {{position}, {position}};
}

std::size_t RowFilterParser::ParseField() {
  SkipBlanks();
  const std::size_t start = place_;
  std::string_view name;
  if (Take("[")) {
    const std::size_t closing = text_.find(']', place_);
    if (closing == std::string_view::npos) throw NotUnderstood(start, "the bracket is not closed");
    name = text_.substr(place_, closing - place_);
    place_ = closing + 1;
  } else {
    name = PeekWord();
    if (name.empty() || IsReserved(name)) throw NotUnderstood(start, R"(a field name or "(" is expected)");
    place_ += name.size();
  }
  const auto field = FindIgnoringCase(fields_, name);
  if (!field) throw NotUnderstood(start, "there is no field named " + std::string(name));
  return *field;
}

std::uint8_t RowFilterParser::ParseOperator() {
  using namespace comparison_outcome;
  SkipBlanks();
  if (Take("<>")) return kLess | kGreater;
  if (Take("<=")) return kLess | kEqual;
  if (Take(">=")) return kGreater | kEqual;
  if (Take("<")) return kLess;
  if (Take(">")) return kGreater;
  if (Take("=")) return kEqual;
  throw NotUnderstood(place_, "one of = <> < <= > >= is expected");
}

RowFilterStep::Literal RowFilterParser::ParseLiteral() {
  if (TakeWord(kNull)) return std::monostate();
  SkipBlanks();
  const char first = AtEnd() ? '\0' : text_[place_];
  if (first == '\'') return ParseText();
  if (first == '#') return ParseDate();
  if (IsDigit(first) || first == '.' || first == '+' || first == '-') return ParseNumber();
  throw NotUnderstood(place_, "a number, a text in single quotes, a date between # or NULL is expected");
}

RowFilterStep::Literal RowFilterParser::ParseNumber() {
  const std::size_t start = place_;
  const auto is_part = [this](std::size_t at) {
    const char c = text_[at];
    const bool is_sign = c == '+' || c == '-';
    return IsDigit(c) || IsLetter(c) || c == '.' ||
           (is_sign && (text_[at - 1] == 'e' || text_[at - 1] == 'E'));
  };
  ++place_;
  while (!AtEnd() && is_part(place_)) ++place_;
  std::string_view number = text_.substr(start, place_ - start);
  if (number.front() == '+') number.remove_prefix(1);
  // `from_chars` would also take the words for infinity behind a sign, and a second sign.
  const std::size_t first = number.starts_with('-') && text_[start] == '-' ? 1 : 0;
  if (number.size() > first && (IsDigit(number[first]) || number[first] == '.')) {
    if (const auto whole = WholeTextAs<std::int64_t>(number)) return *whole;
    if (const auto other = WholeTextAs<double>(number)) return *other;
  }
  throw NotUnderstood(start, "this is not a number, or one out of range");
}

RowFilterStep::Literal RowFilterParser::ParseText() {
  const std::size_t start = place_++;
  std::string text;
  for (;;) {
    const std::size_t quote = text_.find('\'', place_);
    if (quote == std::string_view::npos) throw NotUnderstood(start, "the text has no closing quote");
    text += text_.substr(place_, quote - place_);
    place_ = quote + 1;
    if (!Take("'")) return text;
    text += '\'';
  }
}

RowFilterStep::Literal RowFilterParser::ParseDate() {
  const std::size_t start = place_;
  const std::size_t closing = text_.find('#', start + 1);
  if (closing == std::string_view::npos) throw NotUnderstood(start, "the date has no closing #");
  const auto date = DateIn(text_.substr(start + 1, closing - start - 1));
  if (!date) throw NotUnderstood(start, "this is not a date YYYY-MM-DD or MM/DD/YYYY");
  place_ = closing + 1;
  return *date;
}

void RowFilterParser::SetTrueTargets(const OpenEnds& ends, std::uint32_t target) {
  for (const std::size_t step : ends.if_true) steps_[step].if_true = target;
}

void RowFilterParser::SetFalseTargets(const OpenEnds& ends, std::uint32_t target) {
  for (const std::size_t step : ends.if_false) steps_[step].if_false = target;
}

void RowFilterParser::SkipBlanks() {
  place_ = std::min(text_.find_first_not_of(" \t\r\n", place_), text_.size());
}

bool RowFilterParser::Take(std::string_view wanted) {
  if (!text_.substr(place_).starts_with(wanted)) return false;
  place_ += wanted.size();
  return true;
}

std::string_view RowFilterParser::PeekWord() const {
  if (AtEnd() || !IsLetter(text_[place_])) return {};
  std::size_t end = place_ + 1;
  while (end < text_.size() && (IsLetter(text_[end]) || IsDigit(text_[end]))) ++end;
  return text_.substr(place_, end - place_);
}

bool RowFilterParser::TakeWord(std::string_view wanted) {
  SkipBlanks();
  const std::string_view word = PeekWord();
  if (!IsWord(word, wanted)) return false;
  place_ += word.size();
  return true;
}

Failure RowFilterParser::NotUnderstood(std::size_t place, const std::string& reason) const {
  const auto is_character_start = [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; };
  const std::string_view before = text_.substr(0, place);
  const auto position = std::count_if(before.begin(), before.end(), is_character_start) + 1;
  return {failure_number::kFilterNotUnderstood, "The filter \"" + std::string(text_) +
                                                    "\" is not understood at position " +
                                                    std::to_string(position) + ": " + reason};
}

}  // namespace ferrowind::platform
