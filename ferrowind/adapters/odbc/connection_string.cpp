#include "ferrowind/adapters/odbc/connection_string.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <system_error>
#include <utility>

#include "ferrowind/platform/values/case_fold.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"
#include "ferrowind/platform/values/utf8_validation.h"

namespace ferrowind::odbc {
namespace {

using platform::Failure;

/// The driver that most have would turn line breaks of texts into those of Windows there, and back.
constexpr const char* kLineBreaks = "LFConversion";

Failure NotUnderstood(const char* why) {
  return {platform::failure_number::kInvalidArgument,
          std::string("The connection string for ODBC is not understood: ") + why};
}

/// Reads a connection string from its beginning to its end.
class Reader {
 public:
  explicit Reader(std::string_view text) : text_(text) {}

  [[nodiscard]] bool IsAtEnd() const { return at_ >= text_.size(); }
  [[nodiscard]] std::size_t Place() const { return at_; }
  /// Whether it skipped one.
  bool Skip(char c) {
    if (IsAtEnd() || text_[at_] != c) return false;
    ++at_;
    return true;
  }
  void SkipBlanks() {
    while (Skip(' ')) continue;
  }
  /// What stands in front of the next one of `ends`, or of the end.
  std::string TakeUntil(const char* ends) {
    const std::size_t end = std::min(text_.find_first_of(ends, at_), text_.size());
    const std::size_t begin = std::exchange(at_, end);
    return std::string(text_.substr(begin, end - begin));
  }
  /// The value behind an opening brace.
  std::string TakeBraced() {
    std::string value;
    for (;;) {
      value += TakeUntil("}");
      if (!Skip('}')) throw NotUnderstood("a brace is not closed");
      if (!Skip('}')) return value;
      value += '}';
    }
  }

 private:
  std::string_view text_;
  std::size_t at_ = 0;
};

std::string TakeValue(Reader& reader) {
  reader.SkipBlanks();
  if (!reader.Skip('{')) return platform::Trim(reader.TakeUntil(";"));
  std::string value = reader.TakeBraced();
  reader.SkipBlanks();
  return value;
}

std::chrono::milliseconds TimeIn(const std::string& seconds) {
  constexpr int kMost = 3600;
  int number = 0;
  const char* const end = seconds.data() + seconds.size();
  const auto [place, error] = std::from_chars(seconds.data(), end, number);
  if (error != std::errc() || place != end || number < 1 || number > kMost) {
    throw NotUnderstood("CallTimeout is a number of seconds from 1 to 3600");
  }
  return std::chrono::seconds(number);
}

}  // namespace

ConnectionString::ConnectionString(const std::string& text) {
  if (!platform::IsWellFormedUtf8(text) || text.find('\0') != std::string::npos) {
    throw NotUnderstood("it is no text in UTF-8");
  }
  Reader reader(text);
  while (!reader.IsAtEnd()) {
    reader.SkipBlanks();
    if (reader.IsAtEnd() || reader.Skip(';')) continue;
    const std::size_t begin = reader.Place();
    Attribute attribute;
    attribute.keyword = platform::Trim(reader.TakeUntil("=;"));
    if (attribute.keyword.empty() || !reader.Skip('=')) {
      throw NotUnderstood(
          "a part of it has no keyword and \"=\" in front; a value with a semicolon is "
          "written in braces");
    }
    attribute.value = TakeValue(reader);
    attribute.written = text.substr(begin, reader.Place() - begin);
    attributes_.push_back(std::move(attribute));
    if (!reader.IsAtEnd() && !reader.Skip(';')) {
      throw NotUnderstood("there is something behind a closing brace; \"}\" in a value is written \"}}\"");
    }
  }
  if (const Attribute* const timeout = Find(kCallTimeout)) call_timeout_ = TimeIn(timeout->value);
}

const ConnectionString::Attribute* ConnectionString::Find(std::string_view keyword) const {
  const auto found = std::find_if(attributes_.begin(), attributes_.end(), [&](const Attribute& attribute) {
    return platform::CompareIgnoringCase(attribute.keyword, keyword) == 0;
  });
  return found == attributes_.end() ? nullptr : &*found;
}

std::string ConnectionString::ValueOf(std::string_view keyword) const {
  const Attribute* const found = Find(keyword);
  return found != nullptr ? found->value : std::string();
}

std::string ConnectionString::ForDriver() const {
  std::string text;
  for (const Attribute& attribute : attributes_) {
    if (platform::CompareIgnoringCase(attribute.keyword, kCallTimeout) != 0) text += attribute.written + ';';
  }
  if (Find(kLineBreaks) == nullptr) text += std::string(kLineBreaks) + "=0;";
  return text;
}

std::string ConnectionString::DatabaseName() const {
  const std::string database = ValueOf("Database");
  const std::string source = ValueOf("DSN");
  std::string server = ValueOf("Server");
  if (server.empty()) server = ValueOf("Servername");
  const std::string port = ValueOf("Port");
  std::string name = "The database";
  if (!database.empty()) name += ' ' + database;
  if (!source.empty()) name += " of the data source " + source;
  if (!server.empty()) name += " at " + server + (port.empty() ? "" : ":" + port);
  return name;
}

}  // namespace ferrowind::odbc
