#pragma once

#include <utility>

#include "ferrowind/adapters/odbc/sql_interface.h"

namespace ferrowind::odbc {

/// A handle of the kind `kKind` (SQL_HANDLE_ENV, SQL_HANDLE_DBC, SQL_HANDLE_STMT), or none. Freed when
/// destroyed; a connection is closed first.
template <SQLSMALLINT kKind>
class Handle {
 public:
  Handle() = default;
  /// One of `parent`; none when that is not possible, of which the parent's diagnostics tell.
  explicit Handle(SQLHANDLE parent) {
    if (!SQL_SUCCEEDED(SQLAllocHandle(kKind, parent, &handle_))) handle_ = nullptr;
  }
  Handle(Handle&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
  Handle& operator=(Handle&& other) noexcept {
    std::swap(handle_, other.handle_);
    return *this;
  }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  ~Handle() {
    if (handle_ == nullptr) return;
    if constexpr (kKind == SQL_HANDLE_DBC) SQLDisconnect(handle_);
    SQLFreeHandle(kKind, handle_);
  }

  [[nodiscard]] SQLHANDLE Get() const { return handle_; }
  [[nodiscard]] explicit operator bool() const { return handle_ != nullptr; }

 private:
  SQLHANDLE handle_ = nullptr;
};

using EnvironmentHandle = Handle<SQL_HANDLE_ENV>;
using ConnectionHandle = Handle<SQL_HANDLE_DBC>;
using StatementHandle = Handle<SQL_HANDLE_STMT>;

}  // namespace ferrowind::odbc
