#include "ferrowind/adapters/sqlite/result_reader.h"

#include <limits>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::sqlite {
namespace {

using platform::Date;
using platform::Value;
using ::testing::HasSubstr;

class ResultReaderTest : public ::testing::Test {
 protected:
  /// The single cell of `select`, from a table with a column of each declared type that holds `stored`.
  Value Cell(const std::string& select, const std::string& stored) {
    database_.Execute(("DELETE FROM Cells; INSERT INTO Cells VALUES (" + stored + ", " + stored + ", " +
                       stored + ", " + stored + ", " + stored + ")")
                          .c_str());
    Statement statement(database_, "SELECT " + select + " FROM Cells");
    const auto rows = ReadRecordSet(statement);
    EXPECT_EQ(rows->RowCount(), 1U);
    return rows->Cell(1, 0);
  }

  std::string FailureTextOf(const std::string& select, const std::string& stored) {
    try {
      (void)Cell(select, stored);
    } catch (const platform::Failure& failure) {
      return failure.Description();
    }
    return "";
  }

  void SetUp() override {
    database_.Execute("CREATE TABLE Cells (Small SMALLINT, Number INTEGER, Text TEXT, Day DATE, Plain)");
  }

  DatabaseHandle database_ = DatabaseHandle::InMemory();
};

TEST_F(ResultReaderTest, RefusesMoreThanAnyCalendarDatabaseGives) {
  Statement statement(database_,
                      "WITH RECURSIVE Row (n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM Row LIMIT 1000)"
                      " SELECT hex(zeroblob(8000000)) AS Text FROM Row");
  try {
    (void)ReadRecordSet(statement);
    ADD_FAILURE() << "16 GB were read";
  } catch (const platform::Failure& failure) {
    EXPECT_THAT(failure.Description(), ::testing::HasSubstr("gives more than 512 MB at once"));
  }
}

TEST_F(ResultReaderTest, GivesAnInt16ForAColumnDeclaredSmallint) {
  EXPECT_EQ(Cell("Small", "7"), Value(std::int16_t{7}));
  EXPECT_EQ(Cell("Small", "-32768"), Value(std::int16_t{-32768}));
}

TEST_F(ResultReaderTest, TakesAnExpressionForWhatItsNameDeclares) {
  EXPECT_EQ(Cell("Text || '' AS \"Given DATE\"", "'2026-05-01'"), Value(platform::Date(2026, 5, 1)));
  EXPECT_EQ(Cell("Number + 1 AS \"Given smallint\"", "7"), Value(std::int16_t{8}));
  EXPECT_EQ(Cell("Text || '' AS Plain", "'2026-05-01'"), Value("2026-05-01"));
  EXPECT_THAT(FailureTextOf("Text || '' AS \"Given DATE\"", "'soon'"), ::testing::HasSubstr("no date"));
  Statement statement(database_, "SELECT date('2026-05-01') AS \"Given DATE\", 2 AS \"Two words\"");
  const auto rows = ReadRecordSet(statement);
  EXPECT_EQ(rows->FieldName(0), "Given");
  EXPECT_EQ(rows->FieldName(1), "Two words");
}

TEST_F(ResultReaderTest, GivesAWiderNumberWhereASmallintColumnHoldsOne) {
  EXPECT_EQ(Cell("Small", "32768"), Value(32768));
}

TEST_F(ResultReaderTest, GivesAnInt32ForAWholeNumberAndAnInt64WhenItDoesNotFit) {
  EXPECT_EQ(Cell("Number", "7"), Value(7));
  EXPECT_EQ(Cell("Number", "2147483647"), Value(2147483647));
  EXPECT_EQ(Cell("Number", "2147483648"), Value(std::int64_t{2147483648}));
  EXPECT_EQ(Cell("Number", "-9223372036854775808"), Value(std::numeric_limits<std::int64_t>::min()));
}

TEST_F(ResultReaderTest, GivesADateForAColumnDeclaredDate) {
  EXPECT_EQ(Cell("Day", "'2024-02-29'"), Value(Date(2024, 2, 29)));
  EXPECT_EQ(Cell("Text", "'2024-02-29'"), Value("2024-02-29"));
}

TEST_F(ResultReaderTest, KeepsTheDeclaredTypeThroughAnAliasAndASubquery) {
  EXPECT_EQ(Cell("Day AS Renamed", "'2024-02-29'"), Value(Date(2024, 2, 29)));
  EXPECT_EQ(Cell("(SELECT Small FROM Cells)", "7"), Value(std::int16_t{7}));
}

TEST_F(ResultReaderTest, GivesAnExpressionAsItIsStored) {
  EXPECT_EQ(Cell("Small + 0", "7"), Value(7));
  EXPECT_EQ(Cell("Day || ''", "'2024-02-29'"), Value("2024-02-29"));
  EXPECT_EQ(Cell("Number / 2.0", "7"), Value(3.5));
  EXPECT_EQ(Cell("Plain", "'text'"), Value("text"));
}

TEST_F(ResultReaderTest, GivesAnEmptyValueForNullWhateverTheType) {
  for (const char* column : {"Small", "Number", "Text", "Day", "Plain"})
    EXPECT_EQ(Cell(column, "NULL"), Value());
}

TEST_F(ResultReaderTest, NamesAColumnThatHoldsNoDate) {
  for (const char* stored : {"'2026-02-29'", "'soon'", "''", "20260101"}) {
    EXPECT_THAT(FailureTextOf("Day", stored), HasSubstr("The column Day of the database in memory holds"))
        << stored;
  }
}

TEST_F(ResultReaderTest, NamesAColumnThatHoldsBytes) {
  EXPECT_THAT(FailureTextOf("Plain", "x'00FF'"),
              HasSubstr("The column Plain of the database in memory holds bytes"));
}

TEST_F(ResultReaderTest, GivesATextWithNulWhole) {
  EXPECT_EQ(Cell("CAST(Plain AS TEXT)", "x'610062'"), Value(std::string("a\0b", 3)));
}

}  // namespace
}  // namespace ferrowind::sqlite
