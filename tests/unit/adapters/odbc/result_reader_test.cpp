// What a driver may say of the rows that it gives. The functions of the interface that are called for them
// stand here, in front of the driver manager's.
#include "ferrowind/adapters/odbc/result_reader.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ferrowind/adapters/odbc/wide_text.h"
#include "ferrowind/platform/values/conversion.h"

namespace ferrowind::odbc {
namespace {

/// What the driver answers for a part of a text: how, what it puts into the place, and the length that it
/// tells.
struct Part {
  SQLRETURN answer;
  std::u16string text;
  SQLLEN length;
};

/// The driver of a result of one column of texts.
struct Driver {
  /// The parts of the text of each row, one after the other; the last one comes again and again.
  std::vector<Part> parts;
  std::size_t next_part = 0;
  std::size_t rows = 1;
};

Driver driver;

/// The text of the only cell.
std::string TextOf(std::vector<Part> parts) {
  driver = {.parts = std::move(parts)};
  const StatementHandle statement(nullptr);
  AnswerRoom room;
  const auto rows = ReadRecordSet(statement, room);
  return platform::ToText(rows->Cell(rows->CurrentBookmark(), 0));
}

constexpr SQLLEN kUnknown = SQL_NO_TOTAL;
constexpr std::size_t kRoomOfPart = 4095;

TEST(ResultReader, JoinsTheParts) {
  const std::u16string full(kRoomOfPart, u'a');
  EXPECT_EQ(TextOf({{SQL_SUCCESS_WITH_INFO, full, 8200}, {SQL_SUCCESS, u"bcdef", 10}}),
            std::string(kRoomOfPart, 'a') + "bcdef");
  EXPECT_EQ(TextOf({{SQL_SUCCESS_WITH_INFO, full, kUnknown}, {SQL_SUCCESS, u"b", 2}}),
            std::string(kRoomOfPart, 'a') + "b");
}

TEST(ResultReader, TakesNoMoreThanThereIsRoomForWhateverTheDriverSays) {
  const std::u16string full(kRoomOfPart, u'a');
  for (const SQLLEN length : {SQLLEN{9000}, SQLLEN{1} << 40}) {
    EXPECT_EQ(TextOf({{SQL_SUCCESS, full, length}}), std::string(kRoomOfPart, 'a')) << length;
  }
}

TEST(ResultReader, OfAWholeTextOfUnknownLengthTakesWhatStandsBeforeTheNul) {
  EXPECT_EQ(TextOf({{SQL_SUCCESS, u"Good Friday", kUnknown}}), "Good Friday");
  EXPECT_EQ(TextOf({{SQL_SUCCESS, u"Good Friday", -77}}), "Good Friday");
}

TEST(ResultReader, EndsATextWithoutEnd) {
  driver = {.parts = {{SQL_SUCCESS_WITH_INFO, std::u16string(kRoomOfPart, u'a'), kUnknown}}};
  const StatementHandle statement(nullptr);
  AnswerRoom room(std::size_t{1} << 20);
  EXPECT_THROW(static_cast<void>(ReadRecordSet(statement, room)), AnswerWithoutEnd);
  EXPECT_LT(driver.next_part, 200U);
}

TEST(ResultReader, EndsRowsWithoutEndAlsoOfNothing) {
  driver = {.parts = {{SQL_SUCCESS, u"", SQL_NULL_DATA}}, .rows = std::size_t{1} << 30};
  const StatementHandle statement(nullptr);
  AnswerRoom room(std::size_t{1} << 20);
  EXPECT_THROW(static_cast<void>(ReadRecordSet(statement, room)), AnswerWithoutEnd);
}

TEST(ResultReader, TakesTheRoomOfAllAnswersTogether) {
  const StatementHandle statement(nullptr);
  AnswerRoom room(10'000);
  const auto read = [&] {
    driver = {.parts = {{SQL_SUCCESS, std::u16string(3000, u'a'), 6000}}};
    return ReadRecordSet(statement, room);
  };
  EXPECT_EQ(read()->RowCount(), 1U);
  EXPECT_THROW(static_cast<void>(read()), AnswerWithoutEnd);
}

}  // namespace
}  // namespace ferrowind::odbc

using ferrowind::odbc::driver;

extern "C" {

SQLRETURN SQL_API SQLAllocHandle(SQLSMALLINT /*kind*/, SQLHANDLE /*parent*/, SQLHANDLE* handle) {
  *handle = &driver;
  return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLFreeHandle(SQLSMALLINT /*kind*/, SQLHANDLE /*handle*/) { return SQL_SUCCESS; }

SQLRETURN SQL_API SQLNumResultCols(SQLHSTMT /*statement*/, SQLSMALLINT* count) {
  *count = 1;
  return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLDescribeColW(SQLHSTMT /*statement*/, SQLUSMALLINT /*number*/, SQLWCHAR* name,
                                  SQLSMALLINT /*room*/, SQLSMALLINT* length, SQLSMALLINT* type,
                                  SQLULEN* /*size*/, SQLSMALLINT* /*digits*/, SQLSMALLINT* /*nullable*/) {
  name[0] = 'N';
  *length = 1;
  *type = SQL_WVARCHAR;
  return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLFetch(SQLHSTMT /*statement*/) {
  if (driver.rows == 0) return SQL_NO_DATA;
  --driver.rows;
  return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLGetData(SQLHSTMT /*statement*/, SQLUSMALLINT /*number*/, SQLSMALLINT /*type*/,
                             SQLPOINTER place, SQLLEN room, SQLLEN* length) {
  const auto& part = driver.parts[std::min(driver.next_part, driver.parts.size() - 1)];
  ++driver.next_part;
  const std::size_t bytes = (part.text.size() + 1) * sizeof(char16_t);
  std::memcpy(place, part.text.c_str(), std::min(bytes, static_cast<std::size_t>(room)));
  *length = part.length;
  return part.answer;
}

}  // extern "C"
