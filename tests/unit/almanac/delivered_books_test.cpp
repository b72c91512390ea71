#include "database/seed/delivered_books.h"

#include <algorithm>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/almanac/book_faults.h"
#include "ferrowind/almanac/book_text.h"
#include "ferrowind/almanac/date_table.h"

#include "tests/unit/almanac/delivered_plans.h"

namespace ferrowind::almanac {
namespace {

using ::ferrowind::testing::DeliveredBook;
using ::ferrowind::testing::DeliveredDateTables;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

TEST(DeliveredBooks, AreThereForTwentySixCurrencies) {
  std::vector<std::string_view> currencies;
  for (const embedded::DeliveredText& book : embedded::DeliveredBooks()) currencies.push_back(book.name);
  EXPECT_THAT(currencies, UnorderedElementsAre("AUD", "BRL", "CAD", "CHF", "CLP", "CNY", "CZK", "DKK", "EUR",
                                               "GBP", "HKD", "HUF", "ILS", "ISK", "JPY", "KRW", "MXN", "NOK",
                                               "NZD", "PLN", "RON", "SEK", "SGD", "TRY", "USD", "ZAR"));
}

TEST(DeliveredBooks, HaveNoFaults) {
  ASSERT_FALSE(embedded::DeliveredBooks().empty());
  for (const embedded::DeliveredText& book : embedded::DeliveredBooks()) {
    EXPECT_THAT(FaultsOf(DeliveredBook(book.name), DeliveredDateTables()), IsEmpty()) << book.name;
  }
}

/// History counts from there on; before, nobody has looked.
TEST(DeliveredBooks, HoldFrom2015On) {
  for (const embedded::DeliveredText& book : embedded::DeliveredBooks()) {
    EXPECT_EQ(DeliveredBook(book.name).since, 2015) << book.name;
  }
}

TEST(DeliveredBooks, GiveANameOneKindAndDate) {
  std::vector<NamedBook> books;
  for (const embedded::DeliveredText& book : embedded::DeliveredBooks()) {
    books.push_back({std::string(book.name), DeliveredBook(book.name)});
  }
  EXPECT_THAT(FaultsBetween(books), IsEmpty());
}

TEST(DeliveredBooks, AreTheSameWhenWrittenAndReadAgain) {
  for (const embedded::DeliveredText& book : embedded::DeliveredBooks()) {
    EXPECT_EQ(ReadBook(WriteBook(DeliveredBook(book.name))), DeliveredBook(book.name)) << book.name;
  }
}

TEST(DeliveredTables, HaveNamesThatExpressionsCanSay) {
  ASSERT_FALSE(embedded::DeliveredTables().empty());
  for (const DateTable& table : DeliveredDateTables().All())
    EXPECT_TRUE(IsTableName(table.name)) << table.name;
}

/// A year without a date is a forgotten one, but for those in which the publisher moved no day.
TEST(DeliveredTables, HaveADateInEachYearThatHasOne) {
  const std::set<std::pair<std::string, int>> without = {{"hungary-rest-days", 2017},
                                                         {"hungary-rest-days", 2023},
                                                         {"hungary-working-saturdays", 2017},
                                                         {"hungary-working-saturdays", 2023}};
  for (const DateTable& table : DeliveredDateTables().All()) {
    for (int year = table.first_year; year <= table.last_year; ++year) {
      const bool has_one = std::any_of(table.dates.begin(), table.dates.end(),
                                       [year](const platform::Date& date) { return date.Year() == year; });
      EXPECT_EQ(has_one, !without.contains({table.name, year})) << table.name << ' ' << year;
    }
  }
}

/// A database has one comment for a rule, so books that share a rule say the same of it.
TEST(DeliveredBooks, SayTheSameOfARuleThatTheyShare) {
  struct Said {
    std::string_view by;
    std::string comment;
  };
  std::map<std::string, Said, std::less<>> comments;
  for (const embedded::DeliveredText& book : embedded::DeliveredBooks()) {
    std::set<std::string_view> names;
    for (const BookRule& rule : DeliveredBook(book.name).rules) {
      if (!names.insert(rule.name).second) continue;
      const auto& [by, comment] =
          comments.try_emplace(rule.name, Said{book.name, rule.comment}).first->second;
      EXPECT_EQ(rule.comment, comment) << rule.name << " of " << by << " and " << book.name;
    }
  }
}

}  // namespace
}  // namespace ferrowind::almanac
