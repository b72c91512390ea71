#include "ferrowind/views/planning/year_content.h"

#include <gmock/gmock.h>

#include "ferrowind/views/planning/selected_days.h"
#include "ferrowind/views/planning/typed_currencies.h"

#include "tests/support/failure_of.h"
#include "tests/support/run_in_fresh_thread.h"
#include "tests/unit/planning/memory_planning_world.h"

namespace ferrowind {
namespace {

using planning::Currency;
using planning::kDollar;
using planning::kEuro;
using planning::MemoryPlanningWorld;
using planning::YearOverview;
using platform::YearContent;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using testing::RunInFreshThread;
using ::testing::SizeIs;

const Currency kEuroCurrency = {kEuro, "EUR", "Euro", true, {}};
const Currency kDollarCurrency = {kDollar, "USD", "US Dollar", true, {}};
const platform::Date kToday(2026, 1, 15);
constexpr std::int16_t kGoodFriday = 105;
constexpr std::int16_t kSpringDay = 110;

/// EUR and USD 2028: both closed on Good Friday, EUR on Spring Day, and USD works on it by exception.
class TwoCalendars : public MemoryPlanningWorld {
 public:
  TwoCalendars() {
    CreateCalendar(kEuro, 2028);
    CreateCalendar(kDollar, 2028);
    const std::int32_t good_friday = AddPoint("Good Friday", "2028-04-14");
    const std::int32_t spring_day = AddPoint("Spring Day", "2028-04-19");
    Assign(kEuro, "2028-04-14", 4, good_friday);
    Assign(kDollar, "2028-04-14", 4, good_friday);
    Assign(kEuro, "2028-04-19", 4, spring_day, "if the sun shines");
    Except(kDollar, "2028-04-19", "busy");
  }
  [[nodiscard]] static YearOverview Both() { return Overview({kEuroCurrency, kDollarCurrency}); }
  [[nodiscard]] static YearOverview Overview(const std::vector<Currency>& currencies, int year = 2028) {
    return YearOverview::Load(currencies, year);
  }
};

const platform::YearDay* Find(const platform::YearCalendar& calendar, std::int16_t day) {
  const auto found = std::find_if(calendar.days.begin(), calendar.days.end(),
                                  [&](const auto& listed) { return listed.day_of_year == day; });
  return found == calendar.days.end() ? nullptr : &*found;
}

TEST(YearContentTest, GivesEachKindOfDayALookOfItsOwn) {
  RunInFreshThread([] {
    TwoCalendars world;
    const Currency yen = {392, "JPY", "Yen", true, {}};
    const YearContent content = YearContentOf(TwoCalendars::Overview({kEuroCurrency, yen}), kToday);
    EXPECT_THAT(content.legend, SizeIs(6));
    for (std::size_t one = 0; one < content.legend.size(); ++one) {
      for (std::size_t other = one + 1; other < content.legend.size(); ++other) {
        const auto& left = content.legend[one].look;
        const auto& right = content.legend[other].look;
        EXPECT_TRUE(left.shape != right.shape || left.letter != right.letter) << content.legend[one].text;
      }
    }
  });
}

TEST(YearContentTest, DescribesDaysByNameAndMeaning) {
  RunInFreshThread([] {
    TwoCalendars world;
    const YearContent content = YearContentOf(TwoCalendars::Overview({kEuroCurrency}), kToday);
    ASSERT_THAT(content.calendars, SizeIs(1));
    const auto& euro = content.calendars[0];
    EXPECT_EQ(euro.caption, "EUR");
    EXPECT_EQ(euro.description, "Euro");
    EXPECT_EQ(euro.ordinary, "working day");
    EXPECT_EQ(Find(euro, kGoodFriday)->description, "Good Friday, closed");
    EXPECT_EQ(Find(euro, kSpringDay)->description, "Spring Day, closed: if the sun shines");
    const YearContent dollar = YearContentOf(TwoCalendars::Overview({kDollarCurrency}), kToday);
    EXPECT_EQ(Find(dollar.calendars[0], kSpringDay)->description, "Working day by exception: busy");
  });
}

TEST(YearContentTest, CountsTheDaysOfMonthsAndTheYear) {
  RunInFreshThread([] {
    TwoCalendars world;
    const YearContent euro = YearContentOf(TwoCalendars::Overview({kEuroCurrency}), kToday);
    EXPECT_EQ(euro.calendars[0].months[3].text, "28 working days");
    EXPECT_EQ(euro.calendars[0].months[3].description, "28 working days, 0 weekend days, 2 holidays");
    EXPECT_EQ(euro.summary, "364 working days, 0 weekend days, 2 holidays");
    const YearContent dollar = YearContentOf(TwoCalendars::Overview({kDollarCurrency}), kToday);
    EXPECT_EQ(dollar.summary, "365 working days (1 by exception), 0 weekend days, 1 holiday");
  });
}

TEST(YearContentTest, TellsTheDayThatIsTodayOnlyInItsYear) {
  RunInFreshThread([] {
    TwoCalendars world;
    const YearOverview overview = TwoCalendars::Both();
    EXPECT_EQ(YearContentOf(overview, kToday).today, std::nullopt);
    EXPECT_EQ(YearContentOf(overview, platform::Date(2028, 2, 1)).today, 32);
  });
}

TEST(YearContentTest, TellsOfSeveralCalendarsTogetherWhichAreClosedAndWhy) {
  RunInFreshThread([] {
    TwoCalendars world;
    const YearContent content = YearContentOf(TwoCalendars::Both(), kToday);
    ASSERT_THAT(content.calendars, SizeIs(3));
    const auto& joint = content.calendars[0];
    EXPECT_EQ(joint.key, kJointCalendar);
    EXPECT_EQ(joint.ordinary, "all open");
    EXPECT_EQ(Find(joint, kGoodFriday)->description, "all closed: Good Friday");
    EXPECT_EQ(Find(joint, kGoodFriday)->look.letter, "2");
    EXPECT_EQ(Find(joint, kSpringDay)->description, "closed: Spring Day (EUR)");
    EXPECT_EQ(Find(joint, kSpringDay)->look.letter, "1");
    EXPECT_EQ(joint.months[3].text, "28");
    EXPECT_EQ(joint.months[3].description, "open together on 28 days");
    EXPECT_EQ(content.summary, "Open together on 364 days");
    EXPECT_EQ(content.calendars[2].months[3].text, "29");
  });
}

TEST(YearContentTest, NeverTakesAMissingCalendarForAnOpenOne) {
  RunInFreshThread([] {
    TwoCalendars world;
    const Currency yen = {392, "JPY", "Yen", true, {}};
    const YearContent content = YearContentOf(TwoCalendars::Overview({kEuroCurrency, yen}), kToday);
    const auto& missing = content.calendars[2];
    ASSERT_THAT(missing.days, SizeIs(366));
    EXPECT_EQ(missing.days[0].look.shape, platform::DayShape::kHatching);
    EXPECT_EQ(missing.days[0].description, "no calendar");
    const auto& joint = content.calendars[0];
    EXPECT_EQ(Find(joint, 3)->description, "open as far as known; no calendar of JPY");
    EXPECT_EQ(Find(joint, 3)->look.letter, "?");
    EXPECT_EQ(Find(joint, kGoodFriday)->description, "all closed: Good Friday; no calendar of JPY");
    EXPECT_EQ(joint.months[3].text, "-");
    EXPECT_EQ(content.summary, "Open together on 364 days as far as known; no calendar of JPY");
    EXPECT_EQ(content.legend.back().text, "No calendar");
  });
}

TEST(YearContentTest, NeverTakesACalendarThatIsNotPreparedForAnOpenOne) {
  RunInFreshThread([] {
    TwoCalendars world;
    MemoryPlanningWorld::CreateCalendar(kEuro, 2029);
    MemoryPlanningWorld::Except(kEuro, "2029-01-07", "fair");
    const YearContent content = YearContentOf(TwoCalendars::Overview({kEuroCurrency}, 2029), kToday);
    EXPECT_EQ(content.summary, "Not prepared: none of its days is closed");
    const auto& euro = content.calendars[0];
    ASSERT_THAT(euro.days, SizeIs(365));
    EXPECT_EQ(euro.days[1].look.shape, platform::DayShape::kHatching);
    EXPECT_EQ(euro.days[1].description, "not prepared");
    EXPECT_EQ(euro.days[6].description, "Working day by exception: fair");
    EXPECT_EQ(euro.months[0].text, "-");
    EXPECT_EQ(euro.months[0].description, "not prepared");
    EXPECT_EQ(content.legend.back().text, "Not prepared");
  });
}

TEST(YearContentTest, NamesTheCalendarsThatAreNotPreparedBesideThoseThatAreMissing) {
  RunInFreshThread([] {
    TwoCalendars world;
    MemoryPlanningWorld::CreateCalendar(kEuro, 2029);
    const auto both = [] {
      return YearContentOf(TwoCalendars::Overview({kEuroCurrency, kDollarCurrency}, 2029), kToday);
    };
    EXPECT_EQ(both().summary, "Nothing is known: no calendar of USD; not prepared: EUR");
    EXPECT_EQ(both().legend.back().text, "No calendar, or not prepared");
    MemoryPlanningWorld::CreateCalendar(kDollar, 2029);
    MemoryPlanningWorld::Assign(kDollar, "2029-04-19", 4,
                                MemoryPlanningWorld::AddPoint("Fair", "2029-04-19"));
    const YearContent content = both();
    EXPECT_EQ(content.summary, "Open together on 364 days as far as known; not prepared: EUR");
    EXPECT_EQ(content.calendars[0].months[0].text, "-");
    EXPECT_EQ(content.calendars[0].months[0].description, "not prepared: EUR");
    EXPECT_EQ(Find(content.calendars[0], 3)->description, "open as far as known; not prepared: EUR");
    EXPECT_EQ(Find(content.calendars[0], 109)->description, "all closed: Fair; not prepared: EUR");
  });
}

TEST(YearContentTest, SaysThatACalendarIsClosedOnWeekendsOnly) {
  RunInFreshThread([] {
    TwoCalendars world;
    MemoryPlanningWorld::CreateCalendar(kEuro, 2029);
    MemoryPlanningWorld::Call("CldIUCelebrate", {{"Name1", "Day of rest"}, {"TID1", 2}, {"WD", 1}});
    const auto rest = almanac::RuleDirectory(planning::LoadRules().rules).FindNamed("Day of rest")->id;
    MemoryPlanningWorld::Assign(kEuro, "2029-01-07", 2, rest);
    const YearContent content = YearContentOf(TwoCalendars::Overview({kEuroCurrency}, 2029), kToday);
    EXPECT_THAT(content.summary, HasSubstr("Weekends only: "));
    EXPECT_EQ(content.legend[0].text, "Weekends only");
    const YearContent both =
        YearContentOf(TwoCalendars::Overview({kEuroCurrency, kDollarCurrency}, 2029), kToday);
    EXPECT_THAT(both.summary, HasSubstr("as far as known; no calendar of USD; weekends only: EUR"));
    EXPECT_EQ(both.calendars[1].description, "Euro: weekends only");
    EXPECT_EQ(both.legend[0].text, "Weekend");
  });
}

TEST(YearContentTest, ListsHolidaysAndExceptionsForPrinting) {
  RunInFreshThread([] {
    TwoCalendars world;
    const YearContent both = YearContentOf(TwoCalendars::Both(), kToday);
    ASSERT_THAT(both.notes, SizeIs(2));
    EXPECT_EQ(both.notes[0].text, "Good Friday (EUR, USD)");
    EXPECT_EQ(both.notes[1].text,
              "Spring Day: if the sun shines (EUR); Working day by exception: busy (USD)");
    EXPECT_EQ(HeadingOf(TwoCalendars::Both()), "EUR, USD 2028");
    EXPECT_EQ(YearContentOf(TwoCalendars::Overview({kEuroCurrency}), kToday).notes[0].text, "Good Friday");
  });
}

// Selected days
// ------------------------------------------------------------------------------------------------

TEST(SelectedDaysTest, TakeADayOfTheRowOfAllForThatDayOfEachCalendar) {
  RunInFreshThread([] {
    TwoCalendars world;
    const YearOverview both = TwoCalendars::Both();
    EXPECT_THAT(SelectedDaysOf(both, {{kJointCalendar, 3}, {"840", 2}, {"840", 3}, {"999", 1}}),
                ElementsAre(SelectedDays{0, {3}}, SelectedDays{1, {2, 3}}));
    EXPECT_THAT(SelectedDaysOf(both, {}), IsEmpty());
  });
}

TEST(SelectedDaysTest, CountClosedDaysAndLeaveOpenOnesOutOfExceptions) {
  RunInFreshThread([] {
    TwoCalendars world;
    const YearOverview both = TwoCalendars::Both();
    const auto selected =
        SelectedDaysOf(both, {{kJointCalendar, kGoodFriday}, {kJointCalendar, kSpringDay}, {"978", 3}});
    EXPECT_EQ(SelectionInWords(both, selected), "5 days selected, 3 of them closed");
    EXPECT_THAT(DaysToExcept(both, selected), ElementsAre(SelectedDays{0, {kGoodFriday, kSpringDay}},
                                                          SelectedDays{1, {kGoodFriday, kSpringDay}}));
    EXPECT_THAT(DaysToExcept(both, {{0, {3}}}), IsEmpty());
  });
}

// Typed currencies
// ------------------------------------------------------------------------------------------------

std::vector<std::string> CodesOf(const std::string& text, int year = 2028) {
  std::vector<std::string> codes;
  for (const Currency& currency : TypedCurrencies(text, year)) codes.push_back(currency.code);
  return codes;
}

TEST(TypedCurrenciesTest, AreCodesAndNumbersEachOnce) {
  RunInFreshThread([] {
    TwoCalendars world;
    EXPECT_THAT(CodesOf("usd, 978;USD  eur"), ElementsAre("USD", "EUR"));
    EXPECT_THAT(CodesOf("ALL"), ElementsAre("USD", "EUR")) << "those that have a calendar";
  });
}

TEST(TypedCurrenciesTest, NameWhatIsWrong) {
  RunInFreshThread([] {
    TwoCalendars world;
    const auto refusal = [](const std::string& text, int year = 2028) {
      return testing::FailureOf([&] { (void)TypedCurrencies(text, year); }).Description();
    };
    EXPECT_THAT(refusal("EUR XQQ"), HasSubstr("XQQ"));
    EXPECT_EQ(refusal(" ;"), "Name at least one currency, such as EUR, or ALL");
    EXPECT_EQ(refusal("ALL", 2099), "No currency has a calendar of 2099");
  });
}

TEST(TypedYearTest, IsOneThatCalendarsCanHave) {
  RunInFreshThread([] {
    TwoCalendars world;
    EXPECT_EQ(TypedYear(" 2028 "), 2028);
    for (const char* text : {"1899", "3001", "", "2028x", "x", "99999999999"}) {
      EXPECT_THAT(testing::FailureOf([&] { (void)TypedYear(text); }).Description(),
                  HasSubstr("is no year from 1900 to 3000"));
    }
  });
}

}  // namespace
}  // namespace ferrowind
