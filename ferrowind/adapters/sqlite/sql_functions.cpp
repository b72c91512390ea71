#include "ferrowind/adapters/sqlite/sql_functions.h"

#include <charconv>
#include <iterator>
#include <new>
#include <string>
#include <string_view>
#include <type_traits>

#include "ferrowind/adapters/sqlite/function_arguments.h"
#include "ferrowind/adapters/sqlite/system_user.h"
#include "ferrowind/platform/values/fingerprint.h"
#include "ferrowind/platform/values/text_limits.h"
#include "ferrowind/platform/values/utf8_validation.h"

namespace ferrowind::sqlite {
namespace {

/// All zero bytes in the memory that SQLite keeps for an aggregate until the first row.
struct Aggregate {
  bool has_rows;
  platform::Fingerprint fingerprint;
};

void AddRow(sqlite3_context* context, int count, sqlite3_value** values) noexcept {
  static_assert(std::is_trivially_destructible_v<Aggregate>);
  auto* aggregate = static_cast<Aggregate*>(sqlite3_aggregate_context(context, sizeof(Aggregate)));
  if (aggregate == nullptr) return sqlite3_result_error_nomem(context);
  if (!aggregate->has_rows) aggregate = new (aggregate) Aggregate{true, {}};
  for (int i = 0; i < count; ++i) {
    if (sqlite3_value_type(values[i]) == SQLITE_NULL) {
      aggregate->fingerprint.AddNothing();
    } else {
      aggregate->fingerprint.Add(TextOf(values[i]));
    }
  }
}

void GiveFingerprint(sqlite3_context* context) noexcept {
  const auto* const aggregate = static_cast<const Aggregate*>(sqlite3_aggregate_context(context, 0));
  try {
    const std::string digits =
        aggregate == nullptr ? platform::Fingerprint().Digits() : aggregate->fingerprint.Digits();
    sqlite3_result_text(context, digits.data(), static_cast<int>(digits.size()), SQLITE_TRANSIENT);
  } catch (const std::bad_alloc&) {
    sqlite3_result_error_nomem(context);
  }
}

/// "359,3,12,4:Noon" behind what is in the text, all but the comment's letters as numbers.
void AppendDay(sqlite3_str* days, sqlite3_value** values) noexcept {
  // Room for four numbers of 64 bits.
  char digits[96];
  char* end = digits;
  const auto put = [&](sqlite3_int64 number, char mark) {
    end = std::to_chars(end, std::end(digits), number).ptr;
    *end++ = mark;
  };
  for (int i = 0; i < 3; ++i) put(sqlite3_value_int64(values[i]), ',');
  const std::string_view comment = TextOf(values[3]);
  put(static_cast<sqlite3_int64>(comment.size()), ':');
  sqlite3_str_append(days, digits, static_cast<int>(end - digits));
  if (!comment.empty()) sqlite3_str_append(days, comment.data(), static_cast<int>(comment.size()));
}

void AddDay(sqlite3_context* context, int /*count*/, sqlite3_value** values) noexcept {
  auto* const days = static_cast<sqlite3_str**>(sqlite3_aggregate_context(context, sizeof(sqlite3_str*)));
  if (days == nullptr) return sqlite3_result_error_nomem(context);
  if (*days == nullptr) *days = sqlite3_str_new(sqlite3_context_db_handle(context));
  AppendDay(*days, values);
}

void GiveDays(sqlite3_context* context) noexcept {
  auto* const days = static_cast<sqlite3_str**>(sqlite3_aggregate_context(context, 0));
  if (days == nullptr || *days == nullptr) return sqlite3_result_text(context, "", 0, SQLITE_STATIC);
  GiveText(context, *days);
}

void GiveIsText(sqlite3_context* context, int /*count*/, sqlite3_value** arguments) noexcept {
  const std::string_view text = TextOf(arguments[0]);
  const bool is_text = text.find('\0') == std::string_view::npos && platform::IsWellFormedUtf8(text);
  sqlite3_result_int(context, is_text ? 1 : 0);
}

/// Of all of the text, where SQLite's own length() ends at the first NUL.
void GiveLength(sqlite3_context* context, int /*count*/, sqlite3_value** arguments) noexcept {
  if (sqlite3_value_type(arguments[0]) == SQLITE_NULL) return sqlite3_result_null(context);
  sqlite3_result_int64(context, static_cast<sqlite3_int64>(platform::CharacterCount(TextOf(arguments[0]))));
}

void GiveUser(sqlite3_context* context, int /*count*/, sqlite3_value** /*arguments*/) noexcept {
  try {
    const std::string& user = SystemUserName();
    sqlite3_result_text(context, user.data(), static_cast<int>(user.size()), SQLITE_TRANSIENT);
  } catch (const std::bad_alloc&) {
    sqlite3_result_error_nomem(context);
  }
}

}  // namespace

int AddSqlFunctions(sqlite3* database) noexcept {
  // Harmless ones, so that the views of an untrusted schema may use them too.
  constexpr int kKind = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
  int code = sqlite3_create_function_v2(database, "FERROWIND_FINGERPRINT", -1, kKind, nullptr, nullptr,
                                        AddRow, GiveFingerprint, nullptr);
  if (code != SQLITE_OK) return code;
  code = sqlite3_create_function_v2(database, "FERROWIND_DAYS", 4, kKind, nullptr, nullptr, AddDay, GiveDays,
                                    nullptr);
  if (code != SQLITE_OK) return code;
  code = sqlite3_create_function_v2(database, "FERROWIND_IS_TEXT", 1, kKind, nullptr, GiveIsText, nullptr,
                                    nullptr, nullptr);
  if (code != SQLITE_OK) return code;
  code = sqlite3_create_function_v2(database, "FERROWIND_LENGTH", 1, kKind, nullptr, GiveLength, nullptr,
                                    nullptr, nullptr);
  if (code != SQLITE_OK) return code;
  return sqlite3_create_function_v2(database, "FERROWIND_USER", 0, SQLITE_UTF8 | SQLITE_DIRECTONLY, nullptr,
                                    GiveUser, nullptr, nullptr, nullptr);
}

}  // namespace ferrowind::sqlite
