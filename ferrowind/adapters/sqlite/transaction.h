#pragma once

#include "ferrowind/adapters/sqlite/database_handle.h"

namespace ferrowind::sqlite {

/// A transaction that is undone unless it is committed.
class Transaction {
 public:
  enum class Kind {
    /// Sees the database as it is at the first statement, and may write nothing.
    kReading,
    /// Keeps other writers out from the start, so that what it reads stays true until it is committed.
    kWriting,
  };

  /// `database` must outlive the transaction.
  Transaction(DatabaseHandle& database, Kind kind);
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;
  ~Transaction();

  /// Makes everything durable; when it fails nothing is.
  void Commit();

 private:
  DatabaseHandle& database_;
};

}  // namespace ferrowind::sqlite
