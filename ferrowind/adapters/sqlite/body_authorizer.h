#pragma once

#include "ferrowind/adapters/sqlite/database_handle.h"

namespace ferrowind::sqlite {

/// While it lives, statements prepared on the database may read tables and call functions and, for a
/// procedure that writes, change the rows of the data tables; nothing else. ATTACH, DETACH, PRAGMA,
/// transactions, changes of the schema, of the procedure catalogue or of the history, and loading code are
/// refused when a statement is prepared.
class BodyAuthorizer {
 public:
  /// `database` must outlive the authorizer.
  BodyAuthorizer(const DatabaseHandle& database, bool may_write);
  BodyAuthorizer(const BodyAuthorizer&) = delete;
  BodyAuthorizer& operator=(const BodyAuthorizer&) = delete;
  ~BodyAuthorizer();

 private:
  const DatabaseHandle& database_;
};

}  // namespace ferrowind::sqlite
