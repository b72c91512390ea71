// Files that somebody made to do harm: a call ends in time, with a failure that says so.

#include <chrono>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/content/content_copy.h"
#include "ferrowind/adapters/content/content_table.h"
#include "ferrowind/adapters/sqlite/database_content.h"
#include "ferrowind/adapters/sqlite/engine.h"
#include "ferrowind/platform/values/conversion.h"

#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/database/sqlite_database.h"

namespace ferrowind::contract {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;
using std::chrono::steady_clock;
using ::testing::AllOf;
using ::testing::HasSubstr;

/// A table that never comes to an end, in the place of a delivered one.
const std::string kEndlessDays =
    "PRAGMA foreign_keys = OFF; INSERT INTO CldCalendar (ID1, Year1) VALUES (978, 2026); DROP TABLE CldDay;"
    " CREATE VIEW CldDay AS WITH RECURSIVE Endless (n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM Endless)"
    " SELECT 978 AS ID1, 2026 AS Year1, n AS Day1, n AS ODate, n AS TID1, n AS ID2, n AS Comment FROM Endless"
    " WHERE n < 0";

class SqliteHostileFile : public ::testing::Test {
 protected:
  /// What a call fails with that may take so long.
  [[nodiscard]] std::string FailureOfCall(milliseconds longest, const std::string& procedure,
                                          const std::vector<platform::Value>& inputs = {}) {
    return FailureTextOf([&] {
      sqlite::Engine engine(milliseconds(50), longest);
      (void)engine.Connect(database_.ConnectionString())->Call(procedure, inputs);
    });
  }

  SqliteDatabase database_;
};

TEST_F(SqliteHostileFile, AViewThatNeverEndsEndsWithTheTimeOfTheCall) {
  database_.Execute(kEndlessDays);
  const auto start = steady_clock::now();
  EXPECT_THAT(FailureOfCall(milliseconds(300), "CldGetMain", {978, 2026}),
              AllOf(HasSubstr(database_.Path()), HasSubstr("it took too long"), HasSubstr("SQLite 9")));
  EXPECT_LT(steady_clock::now() - start, seconds(10));
}

TEST_F(SqliteHostileFile, ABodyThatNeverEndsEndsWithTheTimeOfTheCallAndChangesNothing) {
  database_.AddProcedure(R"(-- procedure Endless writes
UPDATE CldSetting SET FirstDay = 5;
WITH RECURSIVE Endless (n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM Endless) SELECT max(n) AS n FROM Endless;
)");
  EXPECT_THAT(FailureOfCall(milliseconds(300), "Endless"), HasSubstr("it took too long"));
  const auto all = ProcedureCaller(database_).Call("CldAllInfo");
  EXPECT_EQ(platform::ToInt32((*all.record_sets.at(3))["FirstDay"]), 1);
}

TEST_F(SqliteHostileFile, ACopyStopsInTheMiddleOfAStatementWhenItIsAsked) {
  database_.Execute(kEndlessDays);
  const auto stop = steady_clock::now() + milliseconds(300);
  const auto is_stopped = [&] { return steady_clock::now() > stop; };
  const std::string failure = FailureTextOf([&] {
    const auto source = sqlite::OpenContent(database_.Path(), is_stopped);
    for (const content::Table& table : content::Tables()) (void)source->CountRows(table);
  });
  EXPECT_THAT(failure, HasSubstr("was told to stop"));
  EXPECT_LT(steady_clock::now() - stop, seconds(10));
}

}  // namespace
}  // namespace ferrowind::contract
