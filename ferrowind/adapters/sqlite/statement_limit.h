#pragma once

#include <chrono>
#include <functional>

#include "ferrowind/adapters/sqlite/database_handle.h"

namespace ferrowind::sqlite {

/// Ends the statements of a database that run when it is time: they fail, and nothing of them is kept. One
/// object at a time for each database.
class StatementLimit {
 public:
  /// `is_over` is asked now and then while a statement runs, and is quick; an empty one never ends any.
  /// `database` must outlive the object, and stay where it is.
  StatementLimit(const DatabaseHandle& database, std::function<bool()> is_over);
  /// It is time when `most` have passed.
  StatementLimit(const DatabaseHandle& database, std::chrono::milliseconds most);
  StatementLimit(const StatementLimit&) = delete;
  StatementLimit& operator=(const StatementLimit&) = delete;
  ~StatementLimit();

  /// The failure of a statement that has ended by this, when it is time. For what runs many statements, each
  /// of which may be too short to be looked at.
  void RequireTime() const;

 private:
  static int IsOver(void* limit) noexcept;

  const DatabaseHandle& database_;
  std::function<bool()> is_over_;
};

}  // namespace ferrowind::sqlite
