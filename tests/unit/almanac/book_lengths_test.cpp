#include "ferrowind/almanac/book_lengths.h"

#include <cstddef>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/unit/almanac/small_book.h"

namespace ferrowind::almanac {
namespace {

using ::ferrowind::testing::BookOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<std::string> Told(const RuleBook& book, const std::vector<std::size_t>& lines = {}) {
  std::vector<std::string> told;
  for (const platform::Phrase& fault : LengthFaultsOf(book, lines)) told.push_back(fault.InEnglish());
  return told;
}

TEST(BookLengths, AreNoFaultUpToTheLongest) {
  RuleBook book = BookOf("point | " + std::string(200, 'n') + " | 12-25 | " + std::string(4000, 'c'));
  book.publisher = std::string(200, 'p');
  book.document = std::string(4000, 'd');
  book.rules.front().moved_name = std::string(200, 'm');
  EXPECT_THAT(Told(book), IsEmpty());
}

TEST(BookLengths, AreToldForEachTextThatIsLonger) {
  RuleBook book =
      BookOf("point | A | 12-25\npoint | " + std::string(201, 'n') + " | 12-26 | " + std::string(4001, 'c'));
  book.publisher = std::string(201, 'p');
  book.document = std::string(4001, 'd');
  book.rules.front().moved_name = std::string(201, 'm');
  EXPECT_THAT(Told(book, {7, 9}),
              ElementsAre("The publisher has 201 characters; it may have 200 at most",
                          "The document has 4001 characters; it may have 4000 at most",
                          "Line 7: The name of the moved day has 201 characters; it may have 200 at most",
                          "Line 9: The name has 201 characters; it may have 200 at most",
                          "Line 9: The comment has 4001 characters; it may have 4000 at most"));
  EXPECT_THAT(Told(book).back(), "Rule 2: The comment has 4001 characters; it may have 4000 at most");
}

}  // namespace
}  // namespace ferrowind::almanac
