#include "ferrowind/adapters/postgres/work_commit.h"

#include "ferrowind/adapters/content/doubtful_outcome.h"
#include "ferrowind/adapters/postgres/postgres_failure.h"

namespace ferrowind::postgres {

void CommitWork(ServerConnection& connection) {
  try {
    connection.Commit();
  } catch (const platform::Failure& failure) {
    if (IsUnconfirmed(failure)) throw content::DoubtfulOutcome(failure);
    if (connection.IsAlive()) throw;
    throw content::DoubtfulOutcome(
        Introduced("It is not known whether the database keeps all that was done or nothing of it, so look "
                   "before you do it again. ",
                   failure));
  }
}

}  // namespace ferrowind::postgres
