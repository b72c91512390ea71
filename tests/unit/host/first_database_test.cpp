#include "host/delivery/first_database.h"

#include <filesystem>
#include <stdexcept>

#include <gmock/gmock.h>

#include "ferrowind/adapters/sqlite/database_file.h"
#include "ferrowind/adapters/sqlite/database_handle.h"
#include "ferrowind/adapters/sqlite/engine.h"
#include "ferrowind/adapters/sqlite/statement.h"
#include "ferrowind/almanac/book_faults.h"
#include "ferrowind/platform/values/failure.h"

#include "host/delivery/delivered_books.h"
#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/database/sqlite_database.h"

namespace ferrowind::host {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

/// It is always the last day of 2031.
class LastDayOf2031 : public platform::Clock {
 public:
  [[nodiscard]] platform::Date Today() const override { return {2031, 12, 31}; }
};

class FirstDatabaseTest : public ::testing::Test {
 protected:
  FirstDatabaseTest() { engines_.Register(sqlite::Engine::kScheme, std::make_shared<sqlite::Engine>()); }

  std::optional<Delivery> Create(const FirstContent& content, const DeliveryObserver& observe = {}) {
    return CreateFirstDatabase(engines_, "sqlite:" + Path(), LastDayOf2031(), content, observe);
  }

  [[nodiscard]] std::string Path() const { return folder_.Path() + "/calendars.db"; }

  /// The only cell of the only row.
  [[nodiscard]] std::string Ask(const std::string& question) const {
    const sqlite::DatabaseHandle database(Path());
    sqlite::Statement ask(database, question);
    return ask.Step() ? std::string(ask.Text(0)) : "no row";
  }

  [[nodiscard]] bool IsFolderEmpty() const { return std::filesystem::is_empty(folder_.Path()); }

  contract::TemporaryFolder folder_;
  platform::EngineRegistry engines_;
};

TEST_F(FirstDatabaseTest, HasTheBooksAndTwoYearsOfEveryDeliveredCurrencyFromTheRunningYearOn) {
  const auto delivery = Create({});
  ASSERT_TRUE(delivery);
  EXPECT_EQ(delivery->first_year, 2031);
  EXPECT_EQ(delivery->last_year, 2032);
  EXPECT_THAT(delivery->currencies, SizeIs(26));
  EXPECT_EQ(Ask("SELECT count(*) FROM CldBook"), "26");
  EXPECT_EQ(Ask("SELECT group_concat(Year1 || ':' || n) FROM"
                " (SELECT Year1, count(*) AS n FROM CldCalendar GROUP BY Year1 ORDER BY Year1)"),
            "2031:26,2032:26");
  EXPECT_THAT(sqlite::CheckDatabase(Path()), IsEmpty());
}

TEST_F(FirstDatabaseTest, ClosesTheDaysThatTheBooksGive) {
  (void)Create({});
  EXPECT_EQ(
      Ask("SELECT group_concat(ODate || ' ' || Name1, ', ') FROM (SELECT d.ODate, h.Name1 FROM CldDay AS d"
          " JOIN CldHoliday AS h ON h.ID2 = d.ID2"
          " WHERE d.ID1 = 978 AND d.Year1 = 2032 AND d.TID1 > 2 ORDER BY d.ODate)"),
      "2032-01-01 New Year's Day, 2032-03-26 Good Friday, 2032-03-29 Easter Monday, "
      "2032-05-01 Labour Day (1 May), 2032-12-25 Christmas Day, 2032-12-26 St Stephen's Day");
  EXPECT_EQ(Ask("SELECT count(*) FROM CldDay WHERE ID1 = 978 AND Year1 = 2032 AND TID1 = 2"), "101");
}

TEST_F(FirstDatabaseTest, TellsWhatNobodyHasAnnouncedYet) {
  const auto delivery = Create({});
  ASSERT_TRUE(delivery);
  EXPECT_THAT(delivery->unknown, ::testing::Contains(HasSubstr("CNY 2031: ")));
}

TEST_F(FirstDatabaseTest, BeginsWithAnotherYearOnDemand) {
  FirstContent content;
  content.first_year = 2026;
  const auto delivery = Create(content);
  ASSERT_TRUE(delivery);
  EXPECT_EQ(delivery->first_year, 2026);
  EXPECT_EQ(Ask("SELECT min(Year1) || '-' || max(Year1) FROM CldCalendar"), "2026-2027");
}

TEST_F(FirstDatabaseTest, NumbersItsRulesInTheOrderOfTheBooks) {
  (void)Create({});
  EXPECT_EQ(
      Ask("SELECT group_concat(Name1, ', ') FROM (SELECT Name1 FROM CldHoliday WHERE ID2 <= 9 ORDER BY ID2)"),
      "Working day by exception, Saturday, Sunday, New Year's Day, Good Friday, Easter Monday, "
      "Labour Day (1 May), Christmas Day, St Stephen's Day");
}

TEST_F(FirstDatabaseTest, HasNeitherBooksNorRulesNorCalendarsWhenItIsEmpty) {
  FirstContent content;
  content.is_empty = true;
  EXPECT_FALSE(Create(content));
  EXPECT_EQ(Ask("SELECT (SELECT count(*) FROM CldBook) + (SELECT count(*) FROM CldCalendar)"), "0");
  EXPECT_EQ(Ask("SELECT count(*) FROM CldHoliday"), "1");
  EXPECT_THAT(sqlite::CheckDatabase(Path()), IsEmpty());
}

TEST_F(FirstDatabaseTest, TellsItsProgressAndIsNotThereWhenThatEndsTheWork) {
  std::vector<std::size_t> done;
  EXPECT_THROW((void)Create({},
                            [&](std::size_t finished, std::size_t total) {
                              EXPECT_EQ(total, 52U);
                              done.push_back(finished);
                              if (finished == 3) throw std::runtime_error("stop");
                            }),
               std::runtime_error);
  EXPECT_THAT(done, ElementsAre(0U, 1U, 2U, 3U));
  EXPECT_TRUE(IsFolderEmpty());
}

TEST_F(FirstDatabaseTest, IsNotThereWhenItsYearsCannotBePlanned) {
  FirstContent content;
  content.first_year = kLastDeliverableYear + 1;
  EXPECT_THROW((void)Create(content), platform::Failure);
  EXPECT_TRUE(IsFolderEmpty());
}

TEST_F(FirstDatabaseTest, IsNotThereWhenTheBooksDoNotTellOfItsYears) {
  for (const int year : {1900, 2014}) {
    FirstContent content;
    content.first_year = year;
    EXPECT_THAT(contract::FailureTextOf([&] { (void)Create(content); }),
                HasSubstr("The delivered rule books hold from 2015 on, so there are no calendars of " +
                          std::to_string(year) + " to deliver"));
    EXPECT_TRUE(IsFolderEmpty());
  }
}

TEST(DeliveredBooks, AreThoseOf26CurrenciesBeginningWithTheOnesThatAreTradedMost) {
  std::vector<std::string> names;
  for (const almanac::NamedBook& delivered : DeliveredBooks()) {
    names.push_back(delivered.name);
    EXPECT_FALSE(delivered.book.publisher.empty()) << delivered.name;
  }
  ASSERT_THAT(names, SizeIs(26));
  EXPECT_THAT(std::vector<std::string>(names.begin(), names.begin() + 5),
              ElementsAre("EUR", "USD", "GBP", "JPY", "CHF"));
}

}  // namespace
}  // namespace ferrowind::host
