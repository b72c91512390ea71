// A copy of a database file holds all that the original has.

#include "ferrowind/adapters/sqlite/database_content.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/content/content_copy.h"
#include "ferrowind/adapters/sqlite/database_file.h"

#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/database/sqlite_database.h"

namespace ferrowind::sqlite {
namespace {

using contract::ProcedureCaller;
using contract::RowsOf;
using contract::SqliteDatabase;

TEST(DatabaseContent, ACopyHasTheBooksAndTheRowsThatCallsReplaced) {
  SqliteDatabase original;
  ProcedureCaller caller(original);
  ASSERT_EQ(
      caller.Return("CldIUBook",
                    {{"ID1", 978},
                     {"Expected", ""},
                     {"Publisher", "P"},
                     {"Document", "D"},
                     {"Rules", R"([{"Name1": "A", "TID1": 3, "Expression": "01-01", "MovedName": "M"}])"},
                     {"FromYear", 2015}}),
      0);
  ASSERT_EQ(
      caller.Return("CldApplyPlan", {{"ID1", 978},
                                     {"Year1", 2028},
                                     {"Expected", ""},
                                     {"Days", R"([{"Name1": "A", "TID1": 3, "Dates": ["2028-01-01"]}])"}}),
      0);
  ASSERT_EQ(caller.Return("CldIUCurrency", {{"CcyID", 840},
                                            {"Ccy", "USD"},
                                            {"CcyType", 0},
                                            {"Name", "Dollar"},
                                            {"LastDay", platform::Date(2030, 1, 1)}}),
            0);
  // As an upgrade leaves it.
  original.Execute(
      "INSERT INTO CldHistoryStart VALUES (0, '2026-01-01T00:00:00.000Z');"
      "UPDATE CldChainStart SET Moment = '2026-01-02T00:00:00.000Z'");

  SqliteDatabase copy;
  const auto source = OpenContent(original.Path());
  FillDatabase(copy.Path(), [&](content::Target& target) { content::CopyContent(*source, target); });
  EXPECT_THAT(CheckDatabase(copy.Path()), ::testing::IsEmpty());
  ProcedureCaller copied(copy);
  for (const std::string procedure : {"CldGetBook", "CldGetCurrencies", "CldGetHistory"}) {
    const auto left = caller.Call(procedure).record_sets;
    const auto right = copied.Call(procedure).record_sets;
    ASSERT_EQ(left.size(), right.size());
    for (std::size_t i = 0; i < left.size(); ++i) EXPECT_EQ(RowsOf(*left[i]), RowsOf(*right[i])) << procedure;
  }
  const auto as_of = [&](ProcedureCaller& of, const std::string& moment) {
    return of.Return("CldGetAsOf", {{"ID1", 978}, {"Year1", 2028}, {"Moment", moment}});
  };
  EXPECT_EQ(as_of(copied, "2025-01-01T00:00:00Z"), 9);
  EXPECT_EQ(as_of(copied, "2026-01-01T00:00:01Z"), 5);
  EXPECT_EQ(as_of(copied, "9999-01-01T00:00:00Z"), 0);
  EXPECT_EQ(copied.Return("CldUndo", {{"EntryID", 2}}), 0);
  EXPECT_EQ(as_of(copied, "9999-01-01T00:00:00Z"), 5);
  EXPECT_EQ(copied.Return("CldUndo", {{"EntryID", 1}}), 0);
  EXPECT_EQ(copied.Call("CldGetBook").record_sets.at(0)->RowCount(), 0U);
}

}  // namespace
}  // namespace ferrowind::sqlite
