#pragma once

#include <string_view>

#include <sqlite3.h>

namespace ferrowind::sqlite {

/// An argument of a function as text, valid as long as `value` is; empty for NULL.
[[nodiscard]] inline std::string_view TextOf(sqlite3_value* value) noexcept {
  // In this order: asking for the bytes first could convert the text a second time.
  const auto* const text = reinterpret_cast<const char*>(sqlite3_value_text(value));
  if (text == nullptr) return {};
  return {text, static_cast<std::size_t>(sqlite3_value_bytes(value))};
}

/// Gives what has been written into `made`, or its error, and frees it.
inline void GiveText(sqlite3_context* context, sqlite3_str* made) noexcept {
  const int error = sqlite3_str_errcode(made);
  const int length = sqlite3_str_length(made);
  char* const text = sqlite3_str_finish(made);
  if (error != SQLITE_OK) return sqlite3_result_error_code(context, error);
  if (text == nullptr) return sqlite3_result_text(context, "", 0, SQLITE_STATIC);
  sqlite3_result_text(context, text, length, sqlite3_free);
}

}  // namespace ferrowind::sqlite
