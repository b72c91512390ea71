#include "ferrowind/exchange/csv_rows.h"

#include <algorithm>
#include <utility>

#include "ferrowind/exchange/list_faults.h"

namespace ferrowind::exchange {
namespace {

char SeparatorOf(std::string_view text) {
  bool is_quoted = false;
  for (const char character : text) {
    if (character == '"') is_quoted = !is_quoted;
    if (!is_quoted && (character == ',' || character == ';' || character == '\t')) return character;
  }
  return ',';
}

class Reader {
 public:
  explicit Reader(std::string_view text) : text_(text), separator_(SeparatorOf(text)) {}

  std::vector<CsvRow> ReadAll() {
    std::vector<CsvRow> rows;
    while (place_ < text_.size()) {
      CsvRow row{line_, {}};
      do row.fields.push_back(ReadField());
      while (TakesSeparator());
      EndRow();
      const bool is_blank = std::all_of(row.fields.begin(), row.fields.end(),
                                        [](const std::string& field) { return field.empty(); });
      if (!is_blank) rows.push_back(std::move(row));
    }
    return rows;
  }

 private:
  std::string ReadField() {
    while (place_ < text_.size() && text_[place_] == ' ') ++place_;
    if (place_ < text_.size() && text_[place_] == '"') return ReadQuoted();
    const std::size_t begin = place_;
    while (!AtEndOfField()) ++place_;
    std::size_t end = place_;
    while (end > begin && text_[end - 1] == ' ') --end;
    return std::string(text_.substr(begin, end - begin));
  }

  std::string ReadQuoted() {
    const std::size_t line = line_;
    std::string field;
    ++place_;
    while (true) {
      if (place_ == text_.size()) throw ListError({{line, "a quotation mark is not closed"}});
      const char character = text_[place_++];
      if (character == '\n') ++line_;
      if (character == '"') {
        if (place_ == text_.size() || text_[place_] != '"') break;
        ++place_;
      }
      field += character;
    }
    while (place_ < text_.size() && text_[place_] == ' ') ++place_;
    if (!AtEndOfField()) {
      throw ListError({{line_,
                        "the end of the field is expected behind a quotation mark; one within a field is "
                        "written twice"}});
    }
    return field;
  }

  [[nodiscard]] bool AtEndOfField() const {
    if (place_ == text_.size()) return true;
    const char character = text_[place_];
    return character == separator_ || character == '\n' || character == '\r';
  }

  bool TakesSeparator() {
    if (place_ == text_.size() || text_[place_] != separator_) return false;
    ++place_;
    return true;
  }

  /// A carriage return alone ends a row, too.
  void EndRow() {
    if (place_ == text_.size()) return;
    if (text_[place_] == '\r') ++place_;
    if (place_ < text_.size() && text_[place_] == '\n') ++place_;
    ++line_;
  }

  std::string_view text_;
  char separator_;
  std::size_t place_ = 0;
  std::size_t line_ = 1;
};

}  // namespace

std::vector<CsvRow> ReadCsvRows(std::string_view text) { return Reader(text).ReadAll(); }

std::string CsvField(std::string_view text) {
  if (text.find_first_of(",\"\r\n") == std::string_view::npos) return std::string(text);
  std::string field = "\"";
  for (const char character : text) {
    if (character == '"') field += '"';
    field += character;
  }
  return field + '"';
}

}  // namespace ferrowind::exchange
