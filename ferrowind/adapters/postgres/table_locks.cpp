#include "ferrowind/adapters/postgres/table_locks.h"

#include <cstddef>
#include <string>

#include "ferrowind/adapters/postgres/postgres_failure.h"
#include "ferrowind/adapters/postgres/result_reader.h"
#include "ferrowind/platform/values/conversion.h"

#include "database/postgres/embedded_sql.h"

namespace ferrowind::postgres {
namespace {

using platform::Failure;

struct Lock {
  const char* mode;
  /// A pattern of the modes that keep it waiting, as the server names them.
  const char* conflicts;
  /// A pattern of the tables that it is taken on.
  const char* tables;
};

Lock LockFor(KeptOut whom) {
  switch (whom) {
    case KeptOut::kChangingCalls:
      return {"SHARE", "^(Row|Access|Share(Update|Row))?Exclusive", "^cldhistory$"};
    case KeptOut::kOtherUpgrades:
      return {"SHARE UPDATE EXCLUSIVE", "^(Access|Share(Update|Row)?)?Exclusive|^ShareLock",
              "^schemaversion$"};
    case KeptOut::kChangesOfTables:
      return {"ACCESS SHARE", "^AccessExclusive", ""};
    case KeptOut::kEverybody:
      break;
  }
  return {"ACCESS EXCLUSIVE", "", ""};
}

/// In the order in which they were created, which is that in which calls go through them.
constexpr const char* kTables = R"sql(
SELECT string_agg(format('%I.%I', n.nspname, c.relname), ', ' ORDER BY c.oid)
FROM pg_catalog.pg_class c JOIN pg_catalog.pg_namespace n ON n.oid = c.relnamespace
WHERE n.nspname = 'ferrowind' AND c.relkind = 'r' AND c.relname ~ $1 AND pg_has_role(c.relowner, 'USAGE'))sql";

std::string FirstText(ServerConnection& connection, const char* question, const char* pattern) {
  const auto rows = ReadRecordSet(connection.Query(question, {pattern}).get(), 1);
  return rows->Eof() ? std::string() : platform::ToTextOrEmpty(rows->Cell(rows->CurrentBookmark(), 0));
}

/// Those who hold locks of `modes`, a pattern, on `tables`, another one; of whole tables or, where `kind`
/// says so, of "rows". Empty when they have let go meanwhile.
std::string Holders(ServerConnection& connection, const std::string& modes, const std::string& tables,
                    const std::string& kind = "tables") {
  constexpr std::size_t kMostNamed = 5;
  const auto rows = ReadRecordSet(
      connection.Query(std::string(embedded::kPostgresLockHolders), {modes, tables, kind}).get(), 1);
  std::string sentences;
  for (std::size_t row = 0; row < rows->RowCount() && row < kMostNamed; ++row) {
    sentences += platform::ToTextOrEmpty(rows->Cell(rows->BookmarkAt(row), 0));
  }
  if (rows->RowCount() > kMostNamed) {
    sentences += "So do " + std::to_string(rows->RowCount() - kMostNamed) + " more. ";
  }
  return sentences;
}

}  // namespace

std::string HoldersOfRows(ServerConnection& connection) {
  // Who changes or locks a row holds such a lock on its table; who only reads does not.
  return Holders(connection, "^(?!AccessShareLock)", "", "rows");
}

void KeepOut(ServerConnection& connection, KeptOut whom) {
  const Lock lock = LockFor(whom);
  connection.RunScript("SET LOCAL lock_timeout = '5s'");
  const std::string tables = FirstText(connection, kTables, lock.tables);
  if (tables.empty()) return;
  try {
    connection.RunScript("LOCK TABLE " + tables + " IN " + lock.mode + " MODE");
  } catch (const Failure& failure) {
    if (!IsOfState(failure, "55P03") && !IsOfState(failure, "40P01")) throw;
    connection.RunScript("ROLLBACK");
    throw Introduced(Holders(connection, lock.conflicts, lock.tables), failure);
  }
}

}  // namespace ferrowind::postgres
