#pragma once

#include "ferrowind/adapters/sqlite/database_handle.h"

namespace ferrowind::sqlite {

/// While it lives, statements prepared on the database may read tables and call functions and, for a
/// procedure that writes, change the rows of the data tables; nothing else. ATTACH, DETACH, PRAGMA,
/// transactions, changes of the schema, of the procedure catalogue or of the history, and loading code are
/// refused when a statement is prepared. So is a statement of more than 2,000 steps: SQLite looks at the
/// time of a call where a statement goes round in a loop, and those that go straight on end soon.
class BodyAuthorizer {
 public:
  /// `database` must outlive the authorizer.
  BodyAuthorizer(const DatabaseHandle& database, bool may_write);
  BodyAuthorizer(const BodyAuthorizer&) = delete;
  BodyAuthorizer& operator=(const BodyAuthorizer&) = delete;
  ~BodyAuthorizer();

 private:
  const DatabaseHandle& database_;
  int most_steps_before_;
};

}  // namespace ferrowind::sqlite
