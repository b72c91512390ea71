#include "ferrowind/adapters/sqlite/statement.h"

#include <string>
#include <type_traits>
#include <variant>

#include "ferrowind/platform/values/failure.h"
#include "ferrowind/platform/values/utf8_validation.h"

namespace ferrowind::sqlite {
namespace {

using platform::Date;
using platform::Value;

/// Binds the value that it is called with and returns SQLite's result code.
struct Binder {
  sqlite3_stmt* statement;
  int index;

  int operator()(std::monostate) const { return sqlite3_bind_null(statement, index); }
  int operator()(bool value) const { return sqlite3_bind_int(statement, index, value ? 1 : 0); }
  int operator()(std::int16_t value) const { return sqlite3_bind_int(statement, index, value); }
  int operator()(std::int32_t value) const { return sqlite3_bind_int(statement, index, value); }
  int operator()(std::int64_t value) const { return sqlite3_bind_int64(statement, index, value); }
  int operator()(float value) const { return sqlite3_bind_double(statement, index, value); }
  int operator()(double value) const { return sqlite3_bind_double(statement, index, value); }
  int operator()(const std::string& value) const {
    if (!platform::IsWellFormedUtf8(value)) {
      throw platform::Failure(platform::failure_number::kInvalidArgument, "A text is not valid UTF-8");
    }
    return sqlite3_bind_text64(statement, index, value.data(), value.size(), SQLITE_STATIC, SQLITE_UTF8);
  }
  int operator()(Date value) const {
    const std::string text = value.ToIso();
    return sqlite3_bind_text64(statement, index, text.data(), text.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
  }
  int operator()(const Value::Object&) const { throw platform::TypeMismatch(); }
};

}  // namespace

Statement::Statement(const DatabaseHandle& database, std::string_view sql) : database_(&database) {
  sqlite3_stmt* statement = nullptr;
  const int code =
      sqlite3_prepare_v2(database.Get(), sql.data(), static_cast<int>(sql.size()), &statement, nullptr);
  statement_.reset(statement);
  if (code != SQLITE_OK) throw database.LastFailure();
}

void Statement::Bind(int index, const Value& value) {
  if (std::visit(Binder{Get(), index}, value.Get()) != SQLITE_OK) throw database_->LastFailure();
}

bool Statement::Step() {
  switch (sqlite3_step(Get())) {
    case SQLITE_ROW:
      return true;
    case SQLITE_DONE:
      return false;
    default:
      throw database_->LastFailure();
  }
}

std::string_view Statement::ColumnName(int column) const {
  const char* const name = sqlite3_column_name(Get(), column);
  if (name == nullptr) throw database_->LastFailure();
  return name;
}

std::string_view Statement::Text(int column) const {
  // In this order: asking for the bytes first could convert the text a second time.
  const auto* const text = reinterpret_cast<const char*>(sqlite3_column_text(Get(), column));
  if (text == nullptr) return {};
  return {text, static_cast<std::size_t>(sqlite3_column_bytes(Get(), column))};
}

}  // namespace ferrowind::sqlite
