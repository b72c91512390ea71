#include "ferrowind/almanac/date_table.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/almanac/text_error.h"

namespace ferrowind::almanac {
namespace {

using platform::Date;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

void ExpectRefused(const std::string& text, std::size_t line, std::size_t place, const std::string& reason) {
  try {
    (void)ReadDateTable("feast", text);
    ADD_FAILURE() << "taken: " << text;
  } catch (const TextError& error) {
    EXPECT_EQ(error.Line(), line) << text;
    EXPECT_EQ(error.Place(), place) << text;
    EXPECT_EQ(error.Description(),
              "Line " + std::to_string(line) + ", at " + std::to_string(place) + ": " + reason);
  }
}

TEST(DateTable, IsReadFromItsText) {
  const DateTable table =
      ReadDateTable("feast", "# A feast.\n\nyears 2025 2027\n2025-01-01\n  2025-12-30\r\n2027-06-01\n");
  EXPECT_EQ(table.name, "feast");
  EXPECT_EQ(table.first_year, 2025);
  EXPECT_EQ(table.last_year, 2027);
  EXPECT_THAT(table.dates, ElementsAre(Date(2025, 1, 1), Date(2025, 12, 30), Date(2027, 6, 1)));
}

TEST(DateTable, ReachesTheYearsThatItSays) {
  const DateTable table = ReadDateTable("feast", "\xEF\xBB\xBFyears\t2025  2026");
  EXPECT_THAT(table.dates, IsEmpty());
  EXPECT_FALSE(table.Reaches(2024));
  EXPECT_TRUE(table.Reaches(2025));
  EXPECT_TRUE(table.Reaches(2026));
  EXPECT_FALSE(table.Reaches(2027));
}

TEST(DateTable, BeginsWithItsYears) {
  const std::string expectation = "the line \"years FIRST LAST\" is expected";
  ExpectRefused("", 1, 1, expectation);
  ExpectRefused("# nothing\n", 2, 1, expectation);
  ExpectRefused("2025-01-01\nyears 2025 2025", 1, 1, expectation);
  ExpectRefused("yearsss 2025 2025", 1, 1, expectation);
  ExpectRefused("years", 1, 1, expectation);
}

TEST(DateTable, NamesThePlaceOfAWrongYear) {
  ExpectRefused("years 1899 2025", 1, 7, "a year 1900 to 2199 is expected");
  ExpectRefused("years x", 1, 7, "a year 1900 to 2199 is expected");
  ExpectRefused("years 2025", 1, 11, "a year 2025 to 2199 is expected");
  ExpectRefused("years 2025 2024", 1, 12, "a year 2025 to 2199 is expected");
  ExpectRefused("years 2025 2026 2027", 1, 12, "a year 2025 to 2199 is expected");
  ExpectRefused("years 20252026", 1, 7, "a year 1900 to 2199 is expected");
}

TEST(DateTable, NamesTheLineOfAWrongDate) {
  ExpectRefused("years 2025 2026\n 2025-02-29", 2, 2, "a date YYYY-MM-DD is expected");
  ExpectRefused("years 2025 2026\n2025-01-01 New Year", 2, 1, "a date YYYY-MM-DD is expected");
  ExpectRefused("years 2025 2026\n\n2027-01-01", 3, 1, "the date is not within the years 2025 to 2026");
  ExpectRefused("years 2025 2026\n2025-03-01\n2025-02-01", 3, 1, "a date after 2025-03-01 is expected");
  ExpectRefused("years 2025 2026\n2025-03-01\n2025-03-01", 3, 1, "a date after 2025-03-01 is expected");
}

TEST(DateTable, RefusesWhatIsNoUtf8) {
  ExpectRefused("# \xC3\xA4\n# \xFF\nyears 2025 2026", 2, 1, "the line is no UTF-8");
}

TEST(TableName, IsWordsThatBeginWithALetter) {
  for (const char* name : {"a", "chinese-new-year", "eid2", "eid2-b3"})
    EXPECT_TRUE(IsTableName(name)) << name;
  for (const char* name : {"", "-", "a-", "-a", "a--b", "2a", "a-2", "A", "a b", "\xC3\xA4"}) {
    EXPECT_FALSE(IsTableName(name)) << name;
  }
}

TEST(DateTables, AreFoundByTheirNames) {
  DateTables tables;
  tables.Add({"b", 2025, 2025, {}});
  tables.Add({"a", 2026, 2026, {}});
  ASSERT_NE(tables.Find("a"), nullptr);
  EXPECT_EQ(tables.Find("a")->first_year, 2026);
  EXPECT_EQ(tables.Find("b")->first_year, 2025);
  EXPECT_EQ(tables.Find("c"), nullptr);
  EXPECT_EQ(tables.Find(""), nullptr);
  EXPECT_EQ(tables.All().front().name, "a");
}

TEST(DateTables, ReplaceATableOfTheSameName) {
  DateTables tables;
  tables.Add({"a", 2025, 2025, {}});
  tables.Add({"a", 2026, 2026, {}});
  EXPECT_EQ(tables.All().size(), 1U);
  EXPECT_EQ(tables.Find("a")->first_year, 2026);
}

}  // namespace
}  // namespace ferrowind::almanac
