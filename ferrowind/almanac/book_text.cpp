#include "ferrowind/almanac/book_text.h"

#include <algorithm>
#include <array>
#include <compare>
#include <optional>
#include <vector>

#include "ferrowind/almanac/date_words.h"
#include "ferrowind/almanac/expression_error.h"
#include "ferrowind/almanac/quotation.h"
#include "ferrowind/almanac/text_error.h"
#include "ferrowind/almanac/text_lines.h"
#include "ferrowind/platform/values/case_fold.h"
#include "ferrowind/platform/values/utf8_validation.h"

namespace ferrowind::almanac {
namespace {

constexpr std::string_view kPublisher = "publisher";
constexpr std::string_view kDocument = "document";
constexpr std::string_view kSince = "since";
constexpr std::size_t kFewestFields = 3;
constexpr std::size_t kMostFields = 5;
constexpr std::size_t kAlignedFields = 3;
constexpr std::array kKinds = {RuleKind::kWorkingDay, RuleKind::kWeekday, RuleKind::kCelebration,
                               RuleKind::kPoint};

std::optional<RuleKind> KindNamed(std::string_view text) {
  for (const RuleKind kind : kKinds) {
    if (std::is_eq(platform::CompareIgnoringCase(text, TextOf(kind)))) return kind;
  }
  return std::nullopt;
}

std::vector<std::string_view> FieldsOf(std::string_view line) {
  std::vector<std::string_view> fields;
  for (;;) {
    const std::size_t bar = line.find('|');
    fields.push_back(WithoutOuterBlanks(line.substr(0, bar)));
    if (bar == std::string_view::npos) return fields;
    line.remove_prefix(bar + 1);
  }
}

/// What follows `word`, when the line begins with it.
std::optional<std::string_view> AfterWord(std::string_view line, std::string_view word) {
  if (!line.starts_with(word)) return std::nullopt;
  const std::string_view rest = line.substr(word.size());
  if (!rest.empty() && rest.front() != ' ' && rest.front() != '\t') return std::nullopt;
  return WithoutOuterBlanks(rest);
}

/// Reads the lines of one book.
class BookReader {
 public:
  explicit BookReader(std::string_view text) : lines_(text) {}

  BookReading Read() {
    while (ReadNext()) {
    }
    if (!has_publisher_) AddMissing(kPublisher);
    if (!has_document_) AddMissing(kDocument);
    return std::move(reading_);
  }

 private:
  /// Whether there was a line.
  bool ReadNext() {
    try {
      if (!lines_.Next()) return false;
      ReadLine();
    } catch (const TextError& error) {
      reading_.errors.push_back(error);
    }
    return true;
  }

  void AddMissing(std::string_view word) {
    reading_.errors.emplace_back(std::max<std::size_t>(lines_.Number(), 1), 1,
                                 "the line \"" + std::string(word) + " NAME\" is missing");
  }

  void ReadLine() {
    const std::string_view line = lines_.Line();
    if (line.find('|') != std::string_view::npos) {
      ReadRule(FieldsOf(line));
    } else if (const auto publisher = AfterWord(line, kPublisher)) {
      ReadHead(kPublisher, *publisher, has_publisher_, reading_.book.publisher);
    } else if (const auto document = AfterWord(line, kDocument)) {
      ReadHead(kDocument, *document, has_document_, reading_.book.document);
    } else if (const auto since = AfterWord(line, kSince)) {
      ReadSince(*since);
    } else {
      throw ErrorAt(
          line, "publisher, document, since or a rule \"kind | name | expression | comment\" is expected");
    }
  }

  void ReadHead(std::string_view word, std::string_view text, bool& has_one, std::string& kept) {
    ExpectFirst(word, has_one);
    if (text.empty()) throw ErrorAt(text, "a name is expected");
    kept = text;
    has_one = true;
  }

  void ReadSince(std::string_view text) {
    ExpectFirst(kSince, reading_.book.since.has_value());
    const std::optional<int> year = YearIn(text);
    if (!year) throw ErrorAt(text, AYear().InEnglish() + " is expected");
    reading_.book.since = year;
  }

  void ExpectFirst(std::string_view word, bool has_one) const {
    if (has_one) throw ErrorAt(lines_.Line(), "there is a line \"" + std::string(word) + "\" already");
  }

  void ReadRule(const std::vector<std::string_view>& fields) {
    const auto kind = KindNamed(fields[0]);
    if (!kind) throw ErrorAt(fields[0], "one of working day, weekday, celebration and point is expected");
    if (fields.size() < kFewestFields)
      throw ErrorAt(fields.back(), "\"| expression | comment\" is missing after the name");
    if (fields.size() > kMostFields) throw ErrorAt(fields[kMostFields], "the end of the line is expected");
    if (fields[1].empty()) throw ErrorAt(fields[1], "a name is expected");
    BookRule rule;
    rule.name = fields[1];
    rule.kind = *kind;
    rule.expression = ExpressionIn(fields[2]);
    if (fields.size() > 3) rule.comment = fields[3];
    if (fields.size() > 4) rule.moved_name = fields[4];
    reading_.book.rules.push_back(std::move(rule));
    reading_.lines.push_back(lines_.Number());
  }

  [[nodiscard]] DateExpression ExpressionIn(std::string_view field) const {
    try {
      return DateExpression::Parse(field);
    } catch (const ExpressionError& error) {
      throw TextError(lines_.Number(), lines_.PlaceOf(field) + error.Place() - 1,
                      error.Expectation().InEnglish() + " is expected in " + Quotation(field));
    }
  }

  [[nodiscard]] TextError ErrorAt(std::string_view part, const std::string& reason) const {
    return {lines_.Number(), lines_.PlaceOf(part), reason};
  }

  TextLines lines_;
  BookReading reading_;
  bool has_publisher_ = false;
  bool has_document_ = false;
};

/// Why `text` cannot stand in the text of a book; empty when it can.
std::string Obstacle(const std::string& text) {
  if (!platform::IsWellFormedUtf8(text)) return "it is no UTF-8";
  if (text.find('|') != std::string::npos) return "it holds \"|\"";
  if (FindControlCharacter(text) != std::string_view::npos)
    return "it holds a line break or another control character";
  if (WithoutOuterBlanks(text).size() != text.size()) return "it begins or ends with a blank";
  return {};
}

void ExpectWritable(const std::string& text, const std::string& what) {
  const std::string obstacle = Obstacle(text);
  if (obstacle.empty()) return;
  throw platform::Failure(platform::failure_number::kInvalidArgument,
                          what + ' ' + Quotation(text) + " cannot stand in the text of a book: " + obstacle);
}

void ExpectWritableName(const std::string& text, const std::string& what) {
  if (text.empty()) {
    throw platform::Failure(platform::failure_number::kInvalidArgument,
                            what + " is empty and cannot stand in the text of a book");
  }
  ExpectWritable(text, what);
}

/// The lines in front of the rules.
std::vector<std::string> HeadOf(const RuleBook& book) {
  std::vector<std::string> lines = {std::string(kPublisher) + ' ' + book.publisher,
                                    std::string(kDocument) + ' ' + book.document};
  if (book.since) lines.push_back(std::string(kSince) + ' ' + std::to_string(*book.since));
  return lines;
}

/// How many columns a text takes: its characters, as far as UTF-8 tells them.
std::size_t WidthOf(const std::string& text) {
  return static_cast<std::size_t>(std::count_if(
      text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

void ExpectWritable(const BookRule& rule) {
  ExpectWritableName(rule.name, "The name of a rule");
  ExpectWritable(rule.comment, "The comment");
  ExpectWritable(rule.moved_name, "The name of a moved day");
}

std::vector<std::string> FieldsOf(const BookRule& rule) {
  std::vector<std::string> fields = {std::string(TextOf(rule.kind)), rule.name, rule.expression.ToText(),
                                     rule.comment};
  if (!rule.moved_name.empty()) fields.push_back(rule.moved_name);
  return fields;
}

std::string LineOf(const std::vector<std::string>& fields,
                   const std::array<std::size_t, kAlignedFields>& widths) {
  std::string line;
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (i > 0) line += " | ";
    line += fields[i];
    if (i < widths.size()) line.append(widths[i] - WidthOf(fields[i]), ' ');
  }
  line.erase(line.find_last_not_of(' ') + 1);
  return line + '\n';
}

}  // namespace

BookReading ReadWholeBook(std::string_view text) { return BookReader(text).Read(); }

RuleBook ReadBook(std::string_view text) {
  BookReading reading = ReadWholeBook(text);
  if (!reading.errors.empty()) throw reading.errors.front();
  return std::move(reading.book);
}

std::vector<std::string> PlainLinesOf(const RuleBook& book) {
  std::vector<std::string> lines = HeadOf(book);
  for (const BookRule& rule : book.rules) {
    std::string line;
    for (const std::string& field : FieldsOf(rule)) line += (line.empty() ? "" : " | ") + field;
    lines.push_back(line.substr(0, line.find_last_not_of(' ') + 1));
  }
  return lines;
}

std::string WriteBook(const RuleBook& book) {
  ExpectWritableName(book.publisher, "The publisher");
  ExpectWritableName(book.document, "The document");
  // The first line of the table says what its columns are.
  std::vector<std::vector<std::string>> lines = {
      {"# kind", "name", "expression", "comment [| name of the moved day]"}};
  for (const BookRule& rule : book.rules) {
    ExpectWritable(rule);
    lines.push_back(FieldsOf(rule));
  }
  std::array<std::size_t, kAlignedFields> widths{};
  for (const auto& fields : lines) {
    for (std::size_t i = 0; i < widths.size(); ++i) widths[i] = std::max(widths[i], WidthOf(fields[i]));
  }
  std::string text;
  for (const std::string& line : HeadOf(book)) text += line + '\n';
  text += '\n';
  for (const auto& fields : lines) text += LineOf(fields, widths);
  return text;
}

std::string_view TextOf(RuleKind kind) {
  switch (kind) {
    case RuleKind::kWorkingDay:
      return "working day";
    case RuleKind::kWeekday:
      return "weekday";
    case RuleKind::kCelebration:
      return "celebration";
    case RuleKind::kPoint:
      return "point";
  }
  return {};
}

}  // namespace ferrowind::almanac
