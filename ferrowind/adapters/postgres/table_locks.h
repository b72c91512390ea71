#pragma once

#include <string>

#include "ferrowind/adapters/postgres/server_connection.h"

/// Locks on the tables of a calendar database, for administrators, and who holds them. Operators and readers
/// have no right by which they could take any of them: their calls and queries lock tables in weaker modes
/// only, and never the one under which databases are upgraded.
namespace ferrowind::postgres {

enum class KeptOut {
  /// Calls that change something, also those that have done so in a transaction that is open; others go on.
  kChangingCalls,
  /// Others who upgrade the database; everybody else goes on.
  kOtherUpgrades,
  /// Whoever changes tables in what they are, an upgrade or a copy into the database; everybody else goes on.
  kChangesOfTables,
  /// Everybody, readers too.
  kEverybody,
};

/// Keeps others out until the transaction ends that is open on `connection`; from here on no statement of it
/// waits for a lock for more than 5 seconds. When somebody does not let go of the tables, the transaction is
/// undone, and the failure says who it is: login, application, process, and how old the transaction is that
/// holds them. (The age of another login's transaction is told to superusers and members of
/// pg_read_all_stats.) Tables that the login has no right to are left out.
void KeepOut(ServerConnection& connection, KeptOut whom);

/// Who may have the rows that a call has waited for in vain, a sentence for each with a blank behind it: all
/// who change something, but for those who wait for somebody themselves. Empty when there is nobody any more.
[[nodiscard]] std::string HoldersOfRows(ServerConnection& connection);

}  // namespace ferrowind::postgres
