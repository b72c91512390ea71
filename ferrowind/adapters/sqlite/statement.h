#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include <sqlite3.h>

#include "ferrowind/adapters/sqlite/database_handle.h"
#include "ferrowind/platform/values/value.h"

namespace ferrowind::sqlite {

/// A prepared statement. Every error is the failure that `DatabaseHandle::LastFailure` makes of it.
class Statement {
 public:
  /// Prepares `sql`, one statement. `database` must outlive the statement.
  Statement(const DatabaseHandle& database, std::string_view sql);

  /// Sets the parameter at the 1-based `index`. Dates are bound as the text YYYY-MM-DD. Text that is not
  /// UTF-8 is the failure Invalid argument, a record set Type mismatch. A text is not copied: `value` must
  /// live until the statement is reset or destroyed.
  void Bind(int index, const platform::Value& value);

  /// Runs on to the next row; false behind the last one.
  bool Step();
  /// Makes the statement ready to run again; its parameters keep their values.
  void Reset() { sqlite3_reset(Get()); }

  [[nodiscard]] int ColumnCount() const { return sqlite3_column_count(Get()); }
  [[nodiscard]] std::string_view ColumnName(int column) const;
  [[nodiscard]] std::int64_t Integer(int column) const { return sqlite3_column_int64(Get(), column); }
  /// Empty for NULL; lives until the next step.
  [[nodiscard]] std::string_view Text(int column) const;

  [[nodiscard]] sqlite3_stmt* Get() const { return statement_.get(); }
  [[nodiscard]] const DatabaseHandle& Database() const { return *database_; }

 private:
  struct Finalizer {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
  };

  const DatabaseHandle* database_;
  std::unique_ptr<sqlite3_stmt, Finalizer> statement_;
};

}  // namespace ferrowind::sqlite
