#include "ferrowind/adapters/sqlite/text_functions.h"

#include <algorithm>
#include <string_view>

#include "ferrowind/adapters/sqlite/function_arguments.h"
#include "ferrowind/adapters/sqlite/text_search.h"
#include "ferrowind/platform/values/text_limits.h"

namespace ferrowind::sqlite {
namespace {

constexpr std::size_t kMostLettersToTrim = 64;
/// Matching takes as many steps as pattern and text have bytes, multiplied.
constexpr std::size_t kMostBytesOfAPattern = 100;
constexpr std::size_t kMostBytesToMatch = std::size_t{64} * 1024;

std::string_view BytesOf(sqlite3_value* value) {
  if (sqlite3_value_type(value) != SQLITE_BLOB) return TextOf(value);
  const auto* const bytes = static_cast<const char*>(sqlite3_value_blob(value));
  return {bytes, static_cast<std::size_t>(sqlite3_value_bytes(value))};
}

bool HasNothing(sqlite3_value** arguments, int count) {
  return std::any_of(arguments, arguments + count,
                     [](sqlite3_value* value) { return sqlite3_value_type(value) == SQLITE_NULL; });
}

/// Counts bytes where both are bytes, else characters.
void GivePosition(sqlite3_context* context, int count, sqlite3_value** arguments) noexcept {
  if (HasNothing(arguments, count)) return sqlite3_result_null(context);
  const bool are_bytes =
      sqlite3_value_type(arguments[0]) == SQLITE_BLOB && sqlite3_value_type(arguments[1]) == SQLITE_BLOB;
  const std::string_view text = are_bytes ? BytesOf(arguments[0]) : TextOf(arguments[0]);
  const std::string_view wanted = are_bytes ? BytesOf(arguments[1]) : TextOf(arguments[1]);
  const std::size_t found = Find(text, wanted);
  if (found == std::string_view::npos) return sqlite3_result_int(context, 0);
  const std::string_view before = text.substr(0, found);
  sqlite3_result_int64(
      context, static_cast<sqlite3_int64>(are_bytes ? before.size() : platform::CharacterCount(before)) + 1);
}

/// Nothing is looked for when the second is empty, whatever the third is.
void GiveReplaced(sqlite3_context* context, int count, sqlite3_value** arguments) noexcept {
  if (HasNothing(arguments, 2)) return sqlite3_result_null(context);
  std::string_view rest = TextOf(arguments[0]);
  const std::string_view wanted = TextOf(arguments[1]);
  if (wanted.empty()) return sqlite3_result_value(context, arguments[0]);
  if (HasNothing(arguments, count)) return sqlite3_result_null(context);
  const std::string_view instead = TextOf(arguments[2]);
  // Made by SQLite, which knows how long a text may become.
  sqlite3_str* const made = sqlite3_str_new(sqlite3_context_db_handle(context));
  const auto append = [&](std::string_view text) {
    if (!text.empty()) sqlite3_str_append(made, text.data(), static_cast<int>(text.size()));
  };
  for (std::size_t found = Find(rest, wanted);
       found != std::string_view::npos && sqlite3_str_errcode(made) == SQLITE_OK;
       found = Find(rest, wanted)) {
    append(rest.substr(0, found));
    append(instead);
    rest.remove_prefix(found + wanted.size());
  }
  append(rest);
  GiveText(context, made);
}

void GiveTrimmed(sqlite3_context* context, int count, sqlite3_value** arguments) noexcept {
  if (HasNothing(arguments, count)) return sqlite3_result_null(context);
  const std::string_view letters = TextOf(arguments[1]);
  const auto is_ascii = [](char byte) { return static_cast<unsigned char>(byte) < 0x80U; };
  if (letters.size() > kMostLettersToTrim || !std::all_of(letters.begin(), letters.end(), is_ascii)) {
    return sqlite3_result_error(context, "trim() takes up to 64 letters of ASCII", -1);
  }
  std::string_view text = TextOf(arguments[0]);
  text.remove_prefix(std::min(text.find_first_not_of(letters), text.size()));
  text.remove_suffix(text.size() - (text.find_last_not_of(letters) + 1));
  sqlite3_result_text(context, text.data(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
}

/// Bytes match nothing where SQLite was built so.
bool AreBytesOfNoMatch(sqlite3_value** arguments) {
  static const bool match_nothing = sqlite3_compileoption_used("LIKE_DOESNT_MATCH_BLOBS") != 0;
  const auto is_bytes = [](sqlite3_value* value) { return sqlite3_value_type(value) == SQLITE_BLOB; };
  return match_nothing && std::any_of(arguments, arguments + 2, is_bytes);
}

/// Whether pattern and text, in this order, can be matched soon; else the answer is an error.
bool CanBeMatched(sqlite3_context* context, sqlite3_value** arguments) {
  if (TextOf(arguments[0]).size() <= kMostBytesOfAPattern &&
      TextOf(arguments[1]).size() <= kMostBytesToMatch) {
    return true;
  }
  sqlite3_result_error(context, "LIKE and GLOB take patterns of up to 100 bytes and texts of up to 64 KB",
                       -1);
  return false;
}

/// Ends with the byte NUL, as SQLite's own functions of patterns have it.
const char* PatternText(sqlite3_value* value) {
  const auto* const text = reinterpret_cast<const char*>(sqlite3_value_text(value));
  return text != nullptr ? text : "";
}

void GiveWhetherGlob(sqlite3_context* context, int count, sqlite3_value** arguments) noexcept {
  if (AreBytesOfNoMatch(arguments)) return sqlite3_result_int(context, 0);
  if (HasNothing(arguments, count)) return sqlite3_result_null(context);
  if (!CanBeMatched(context, arguments)) return;
  const int difference = sqlite3_strglob(PatternText(arguments[0]), PatternText(arguments[1]));
  sqlite3_result_int(context, difference == 0 ? 1 : 0);
}

/// The third, if there is one, is the character that makes the next one of the pattern an ordinary one.
void GiveWhetherLike(sqlite3_context* context, int count, sqlite3_value** arguments) noexcept {
  if (AreBytesOfNoMatch(arguments)) return sqlite3_result_int(context, 0);
  if (HasNothing(arguments, count)) return sqlite3_result_null(context);
  if (!CanBeMatched(context, arguments)) return;
  unsigned int escape = 0;
  if (count > 2) {
    const std::string_view character = TextOf(arguments[2]);
    if (character.size() != 1 || character == "%" || character == "_") {
      return sqlite3_result_error(context, "ESCAPE takes a single character of ASCII, but % and _", -1);
    }
    escape = static_cast<unsigned char>(character.front());
  }
  const int difference = sqlite3_strlike(PatternText(arguments[0]), PatternText(arguments[1]), escape);
  sqlite3_result_int(context, difference == 0 ? 1 : 0);
}

}  // namespace

int ReplaceSlowTextFunctions(sqlite3* database) noexcept {
  constexpr int kKind = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
  constexpr struct {
    const char* name;
    int arguments;
    void (*give)(sqlite3_context*, int, sqlite3_value**);
  } kFunctions[] = {{"instr", 2, GivePosition},   {"replace", 3, GiveReplaced}, {"trim", 2, GiveTrimmed},
                    {"glob", 2, GiveWhetherGlob}, {"like", 2, GiveWhetherLike}, {"like", 3, GiveWhetherLike}};
  for (const auto& [name, arguments, give] : kFunctions) {
    const int code = sqlite3_create_function_v2(database, name, arguments, kKind, nullptr, give, nullptr,
                                                nullptr, nullptr);
    if (code != SQLITE_OK) return code;
  }
  return SQLITE_OK;
}

}  // namespace ferrowind::sqlite
