#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/sqlite/database_file.h"

#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/database/sqlite_database.h"

namespace ferrowind::sqlite {
namespace {

using contract::ProcedureCaller;
using contract::SqliteDatabase;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

std::string Long(int characters) { return "printf('%." + std::to_string(characters) + "c', 'x')"; }

TEST(DatabaseLongTexts, AreNoneInADatabaseOfTextsOfTheLongestLength) {
  SqliteDatabase database;
  database.Execute("UPDATE CldHoliday SET Name1 = " + Long(200) + ", Comment = " + Long(4000) +
                   " WHERE ID2 = 1");
  EXPECT_THAT(LongTexts(database.Path()), IsEmpty());
}

TEST(DatabaseLongTexts, AreToldByWhatTheyBelongTo) {
  SqliteDatabase database;
  ASSERT_EQ(ProcedureCaller(database).Return("CldIUMain", {{"ID1", 978}, {"Year1", 2026}}), 0);
  database.Execute(
      "UPDATE DicCcy SET Name = " + Long(201) +
      " WHERE Ccy = 'AUD'; UPDATE CldHoliday SET Name1 = " + Long(201) + ", Comment = " + Long(4001) +
      " WHERE ID2 = 1; INSERT INTO CldBook (ID1, Publisher, Document) VALUES (978, " + Long(202) + ", " +
      Long(4002) + "); INSERT INTO CldRecurrence VALUES (978, 1, " + Long(203) + ", 4, " + Long(4003) + ", " +
      Long(4004) + ", " + Long(205) + "); UPDATE CldDay SET Comment = " + Long(5000) + " WHERE Day1 = 121");
  EXPECT_THAT(
      LongTexts(database.Path()),
      ElementsAre(
          "The name of the currency AUD has 201 characters; it may have 200 at most",
          "The name of the rule 1 has 201 characters; it may have 200 at most",
          "The comment of the rule 1 has 4001 characters; it may have 4000 at most",
          "The publisher of the rule book of EUR has 202 characters; it may have 200 at most",
          "The document of the rule book of EUR has 4002 characters; it may have 4000 at most",
          "The name of the rule 1 of the rule book of EUR has 203 characters; it may have 200 at most",
          "The name of the moved day of the rule 1 of the rule book of EUR has 205 characters; it may have "
          "200 at most",
          "The expression of the rule 1 of the rule book of EUR has 4003 characters; it may have 4000 at "
          "most",
          "The comment of the rule 1 of the rule book of EUR has 4004 characters; it may have 4000 at most",
          "The comment of the day 2026-05-01 of the calendar of EUR has 5000 characters; it may have 4000 at "
          "most"));
}

TEST(DatabaseLongTexts, AreShownByTheirBeginningWhereTheCheckFindsThatNoCallWroteThem) {
  SqliteDatabase database;
  ASSERT_EQ(ProcedureCaller(database).Return("CldIUMain", {{"ID1", 978}, {"Year1", 2026}}), 0);
  database.Execute("UPDATE CldDay SET Comment = replace(" + Long(5000) + ", 'x', 'ü') WHERE Day1 = 121");
  const auto findings = CheckDatabase(database.Path());
  ASSERT_EQ(findings.size(), 1U);
  EXPECT_THAT(findings.front(), StartsWith("The day 121 of the calendar 978 of 2026 is "));
  EXPECT_THAT(findings.front(), HasSubstr("üüü..., but no entry of the history made it so"));
  EXPECT_LT(findings.front().size(), 1000U);
}

TEST(DatabaseLongTexts, CountAllOfATextWithACharacterNulInIt) {
  SqliteDatabase database;
  database.Execute("UPDATE CldHoliday SET Comment = char(0) || " + Long(4000) + " WHERE ID2 = 1");
  EXPECT_THAT(LongTexts(database.Path()),
              ElementsAre("The comment of the rule 1 has 4001 characters; it may have 4000 at most"));
}

}  // namespace
}  // namespace ferrowind::sqlite
