// The ODBC engine under the suites of the database port, but for those of watches, which it does not have.

#include "tests/contract/database/engine_contract.h"
#include "tests/contract/database/history_contract.h"
#include "tests/contract/database/procedures_contract.h"
#include "tests/contract/odbc/odbc_database.h"

namespace ferrowind::contract {
namespace {

/// No call fails because the machine is busy with other tests; of deadlines others tell.
constexpr const char* kPatient = ";CallTimeout=120";
/// Settings under which the driver works in other ways.
constexpr const char* kOtherWays =
    ";CallTimeout=120;UseDeclareFetch=1;Fetch=2;UseServerSidePrepare=0;LFConversion=0";

INSTANTIATE_TEST_SUITE_P(
    Engines, EngineContract,
    ::testing::Values(DatabaseKind<DatabaseUnderTest>{"Odbc", [] { return MakeOdbcProbes(kPatient); }},
                      DatabaseKind<DatabaseUnderTest>{"OdbcInOtherWays",
                                                      [] { return MakeOdbcProbes(kOtherWays); }}),
    KindName<DatabaseKind<DatabaseUnderTest>>);

INSTANTIATE_TEST_SUITE_P(Engines, ProceduresContract,
                         ::testing::Values(DatabaseKind<CalendarDatabaseUnderTest>{
                             "Odbc", [] { return std::make_unique<OdbcDatabase>(kPatient); }}),
                         KindName<DatabaseKind<CalendarDatabaseUnderTest>>);

INSTANTIATE_TEST_SUITE_P(Engines, HistoryContract,
                         ::testing::Values(DatabaseKind<DatabaseWithHistoryUnderTest>{
                             "Odbc", [] { return std::make_unique<OdbcDatabase>(kPatient); }}),
                         KindName<DatabaseKind<DatabaseWithHistoryUnderTest>>);

}  // namespace
}  // namespace ferrowind::contract
