// Questions about business days in words.

#include "host/admin/date_question.h"

#include <chrono>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/business_days/day_failures.h"

namespace ferrowind::host {
namespace {

using namespace std::chrono_literals;
using business_days::BusinessCalendar;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// The year 2026, open but for weekends and `closed`, days of the year counted from 1.
BusinessCalendar Calendar(const std::string& code, const std::vector<std::size_t>& closed) {
  std::string year(365, '0');
  // 1 January is a Thursday.
  for (std::size_t day = 0; day < year.size(); ++day) year[day] = day % 7 == 2 || day % 7 == 3 ? '1' : '0';
  for (const std::size_t day : closed) year[day - 1] = '1';
  return {code, {{2026y, year}}};
}

class DateQuestionTest : public ::testing::Test {
 protected:
  [[nodiscard]] DateAnswer Ask(const std::vector<std::string>& words) const {
    return AnswerDateQuestion(words, days_, {true, business_days::ClosedTradeDate::kCountsAsNext});
  }
  [[nodiscard]] std::vector<std::string> Passed(const std::vector<std::string>& words) const {
    std::vector<std::string> texts;
    for (const PassedDay& passed : Ask(words).passed) texts.push_back(passed.Text());
    return texts;
  }
  [[nodiscard]] std::string Refusal(const std::vector<std::string>& words) const {
    try {
      return "answered " + Ask(words).text;
    } catch (const std::exception& error) {
      return error.what();
    }
  }

  /// 5 January closed in the euro, 6 January in the dollar; 29 and 30 January in the yen.
  loading::LoadedDays days_{
      business_days::CalendarSet({Calendar("EUR", {5}), Calendar("USD", {6}), Calendar("JPY", {29, 30})}),
      {},
      {},
      {{978, "EUR"}, {840, "USD"}, {392, "JPY"}}};
};

TEST_F(DateQuestionTest, NumbersOfCurrenciesStandForTheirCodes) {
  for (const std::string codes : {"978,840", "978,USD", "eur,840"}) {
    EXPECT_EQ(Ask({"is", codes, "2026-01-06"}).text, "closed") << codes;
  }
  for (const std::string pair : {"978/840", "978840", "EUR/840", "978/usd"}) {
    EXPECT_EQ(Ask({"spot", pair, "2026-01-02"}).text, Ask({"spot", "EURUSD", "2026-01-02"}).text) << pair;
  }
  EXPECT_EQ(Refusal({"is", "EUR,999", "2026-01-06"}), "There is no calendar of 999");
  EXPECT_EQ(Refusal({"is", "EUR,,USD", "2026-01-06"}), "\"EUR,,USD\" has a place without a currency's code");
}

TEST_F(DateQuestionTest, ADayIsOpenClosedOrNotPrepared) {
  EXPECT_EQ(Ask({"is", "EUR", "2026-01-06"}).text, "open");
  EXPECT_EQ(Ask({"is", "EUR,USD", "2026-01-06"}).text, "closed");
  EXPECT_EQ(Ask({"is", "EUR", "2027-01-04"}).text, "not prepared");
  EXPECT_EQ(Ask({"is", "EUR", "2026-01-06"}).status, ExitStatus::kDone);
  EXPECT_EQ(Ask({"is", "EUR", "2026-01-05"}).status, ExitStatus::kClosed);
  EXPECT_EQ(Ask({"is", "EUR", "2027-01-04"}).status, ExitStatus::kNotPrepared);
  EXPECT_EQ(Ask({"is", "EUR", "2027-01-04"}).remark, "EUR 2027 is not prepared");
}

TEST_F(DateQuestionTest, WhyNamesForWhomEachPassedDayIsClosed) {
  EXPECT_EQ(Ask({"next", "EUR,USD", "2026-01-02"}).text, "2026-01-07");
  EXPECT_THAT(Passed({"next", "EUR,USD", "2026-01-02"}),
              ElementsAre("2026-01-03 Saturday: EUR, USD", "2026-01-04 Sunday: EUR, USD",
                          "2026-01-05 Monday: EUR", "2026-01-06 Tuesday: USD"));
  EXPECT_EQ(Passed({"previous", "EUR,USD", "2026-01-07"}), Passed({"next", "EUR,USD", "2026-01-02"}));
  EXPECT_EQ(Passed({"add", "EUR,USD", "2026-01-07", "-1"}), Passed({"next", "EUR,USD", "2026-01-02"}));
  EXPECT_EQ(Passed({"between", "EUR,USD", "2026-01-02", "2026-01-07"}),
            Passed({"next", "EUR,USD", "2026-01-02"}));
  EXPECT_THAT(Passed({"adjust", "EUR", "2026-01-06", "Following"}), IsEmpty());
  EXPECT_THAT(Passed({"adjust", "EUR", "2026-01-05", "P"}),
              ElementsAre("2026-01-03 Saturday: EUR", "2026-01-04 Sunday: EUR", "2026-01-05 Monday: EUR"));
}

TEST_F(DateQuestionTest, WhyNamesWhatClosesADay) {
  days_.names.AddRule(7, "Epiphany");
  days_.names.AddRule(8, "Three Kings");
  days_.names.AddRule(9, "Weekend");
  // 3 to 6 January, of which the euro is open on the last one.
  days_.names.AddYear("EUR", 2026, "00111", "9,9,7");
  days_.names.AddYear("USD", 2026, "001101", "9,9,8");
  EXPECT_THAT(Passed({"next", "EUR,USD", "2026-01-02"}),
              ElementsAre("2026-01-03 Weekend: EUR, USD", "2026-01-04 Weekend: EUR, USD",
                          "2026-01-05 Epiphany: EUR", "2026-01-06 Three Kings: USD"));
  EXPECT_EQ(PassedDay({std::chrono::sys_days(2026y / 1 / 5),
                       {{"EUR", "Epiphany"}, {"USD", "Three Kings"}, {"CHF", "Epiphany"}, {"JPY", ""}}})
                .Text(),
            "2026-01-05 Epiphany: EUR, CHF; Three Kings: USD; Monday: JPY");
}

TEST_F(DateQuestionTest, WhyOfAMonthThatEndsEarlyNamesTheDaysToItsEnd) {
  EXPECT_EQ(Ask({"month-end", "JPY", "2026-01-05"}).text, "2026-01-28");
  const auto closed_for_yen = {"2026-01-29 Thursday: JPY", "2026-01-30 Friday: JPY"};
  EXPECT_THAT(
      Passed({"month-end", "JPY", "2026-01-05"}),
      ElementsAre(*closed_for_yen.begin(), *(closed_for_yen.begin() + 1), "2026-01-31 Saturday: JPY"));
}

TEST_F(DateQuestionTest, ASpotDatePassesTheDaysOfBothAndOfTheDollar) {
  EXPECT_EQ(Ask({"spot", "EUR/JPY", "2026-01-02"}).text, "2026-01-07");
  EXPECT_THAT(Passed({"spot", "EURJPY", "2026-01-02"}).back(), HasSubstr("2026-01-06 Tuesday: USD"));
  EXPECT_EQ(Ask({"value", "EURUSD", "2026-01-02", "SN"}).text, "2026-01-08");
}

TEST_F(DateQuestionTest, SaysWhatWasExpected) {
  EXPECT_THAT(Refusal({}), HasSubstr("it is one of is, next"));
  EXPECT_THAT(Refusal({"when"}), HasSubstr("\"when\" is no question"));
  EXPECT_EQ(Refusal({"next", "EUR"}), "expected is \"next CCY[,CCY...] DATE\"");
  EXPECT_EQ(Refusal({"next", "EUR,", "2026-01-02"}), "\"EUR,\" has a place without a currency's code");
  EXPECT_EQ(Refusal({"is", "", "2026-01-02"}), "A joint calendar needs at least one currency");
  EXPECT_THAT(Refusal({"add", "EUR", "2026-01-02", "99999999999"}), HasSubstr("is no number of days"));
  EXPECT_THROW((void)Ask({"next", "EUR", "2026-12-31"}), business_days::NotPrepared);
}

}  // namespace
}  // namespace ferrowind::host
