#include "ferrowind/adapters/sqlite/sql_functions.h"

#include <new>
#include <string>
#include <string_view>
#include <type_traits>

#include "ferrowind/adapters/sqlite/system_user.h"
#include "ferrowind/platform/values/fingerprint.h"
#include "ferrowind/platform/values/utf8_validation.h"

namespace ferrowind::sqlite {
namespace {

std::string_view TextOf(sqlite3_value* value) {
  // In this order: asking for the bytes first could convert the text a second time.
  const auto* const text = reinterpret_cast<const char*>(sqlite3_value_text(value));
  if (text == nullptr) return {};
  return {text, static_cast<std::size_t>(sqlite3_value_bytes(value))};
}

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

void GiveIsText(sqlite3_context* context, int /*count*/, sqlite3_value** arguments) noexcept {
  const std::string_view text = TextOf(arguments[0]);
  const bool is_text = text.find('\0') == std::string_view::npos && platform::IsWellFormedUtf8(text);
  sqlite3_result_int(context, is_text ? 1 : 0);
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
  code = sqlite3_create_function_v2(database, "FERROWIND_IS_TEXT", 1, kKind, nullptr, GiveIsText, nullptr,
                                    nullptr, nullptr);
  if (code != SQLITE_OK) return code;
  return sqlite3_create_function_v2(database, "FERROWIND_USER", 0, SQLITE_UTF8 | SQLITE_DIRECTONLY, nullptr,
                                    GiveUser, nullptr, nullptr, nullptr);
}

}  // namespace ferrowind::sqlite
