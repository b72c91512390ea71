// Planning on PostgreSQL.

#include "tests/contract/planning/planning_contract.h"
#include "tests/contract/postgres/postgres_database.h"

namespace ferrowind::contract {
namespace {

const DatabaseKind<CalendarDatabaseUnderTest> kPostgres = {
    "Postgres", [] { return std::make_unique<PostgresDatabase>(); }};

INSTANTIATE_TEST_SUITE_P(Engines, PlanningContract, ::testing::Values(kPostgres),
                         KindName<DatabaseKind<CalendarDatabaseUnderTest>>);

}  // namespace
}  // namespace ferrowind::contract
