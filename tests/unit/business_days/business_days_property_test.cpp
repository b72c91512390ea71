#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <string>
#include <variant>

#include <gtest/gtest.h>

#include "ferrowind/business_days/business_calendar.h"
#include "ferrowind/business_days/day_failures.h"
#include "ferrowind/business_days/joint_calendar.h"

#include "naive_days.h"
#include "random_calendars.h"

namespace ferrowind::business_days {
namespace {

using std::chrono::sys_days;

/// A few seconds under the sanitizers. FERROWIND_QUESTIONS asks more, as before a release.
std::int64_t Questions() {
  const char* wanted = std::getenv("FERROWIND_QUESTIONS");
  return wanted != nullptr ? std::atoll(wanted) : 10'000;
}

constexpr std::int64_t kQuestionsToACalendar = 2'000;

/// What became of a question: a number, "not prepared 2027", or "no business day".
using Answer = std::variant<std::int64_t, std::string>;

std::int64_t NumberOf(sys_days day) { return day.time_since_epoch().count(); }
std::int64_t NumberOf(std::int64_t number) { return number; }

std::string NotPreparedIn(std::chrono::year year) {
  return "not prepared " + std::to_string(static_cast<int>(year));
}

template <typename Question>
Answer AnswerOf(Question question) {
  try {
    return NumberOf(question());
  } catch (const NotPrepared& failure) {
    return NotPreparedIn(failure.Year());
  } catch (const NoBusinessDay&) {
    return "no business day";
  } catch (const Unknown& unknown) {
    return NotPreparedIn(unknown.year);
  } catch (const NoneFound&) {
    return "no business day";
  }
}

std::string TextOf(const Answer& answer) {
  const auto* number = std::get_if<std::int64_t>(&answer);
  return number != nullptr ? std::to_string(*number) : std::get<std::string>(answer);
}

Convention RandomConvention(RandomNumbers& random) { return static_cast<Convention>(random() % 7); }

std::int32_t RandomCount(RandomNumbers& random) {
  const std::int32_t most = random() % 20 == 0 ? 3'000 : 40;
  return static_cast<std::int32_t>(random() % (2 * static_cast<unsigned>(most) + 1)) - most;
}

/// One question of each kind to both; what differs.
void ExpectSameAnswers(const BusinessDays& ours, const NaiveDays& naive, RandomNumbers& random) {
  const sys_days day = RandomDay(random);
  const sys_days other = RandomDay(random);
  const Convention convention = RandomConvention(random);
  const std::int32_t count = RandomCount(random);
  const auto expect_same = [&](const char* name, auto our_question, auto naive_question) {
    const Answer answer = AnswerOf(our_question);
    const Answer expected = AnswerOf(naive_question);
    ASSERT_EQ(TextOf(answer), TextOf(expected))
        << name << " of day " << NumberOf(day) << ", other " << NumberOf(other) << ", count " << count
        << ", convention " << NameOf(convention);
  };
  expect_same(
      "is", [&] { return std::int64_t{ours.IsBusinessDay(day)}; },
      [&] { return std::int64_t{naive.IsOpen(day)}; });
  expect_same(
      "next", [&] { return ours.Next(day); }, [&] { return naive.Next(day); });
  expect_same(
      "previous", [&] { return ours.Previous(day); }, [&] { return naive.Previous(day); });
  expect_same(
      "adjust", [&] { return ours.Adjust(day, convention); }, [&] { return naive.Adjust(day, convention); });
  expect_same(
      "add", [&] { return ours.AddBusinessDays(day, count); }, [&] { return naive.Add(day, count); });
  expect_same(
      "between", [&] { return std::int64_t{ours.BusinessDaysBetween(day, other)}; },
      [&] { return std::int64_t{naive.Between(day, other)}; });
  expect_same(
      "last of month", [&] { return ours.LastBusinessDayOfMonth(day); },
      [&] { return naive.LastOfMonth(day); });
}

TEST(BusinessDaysProperty, AnswersAsLookingAtOneDayAfterTheOtherDoes) {
  RandomNumbers random(20261122);
  for (std::int64_t asked = 0; asked < Questions(); asked += kQuestionsToACalendar) {
    const auto years = RandomYears(random);
    const BusinessCalendar calendar("AAA", years);
    const NaiveDays naive(years);
    for (std::int64_t question = 0; question < kQuestionsToACalendar; question += 7) {
      ExpectSameAnswers(calendar, naive, random);
      if (HasFatalFailure()) return;
    }
  }
}

TEST(BusinessDaysProperty, AnswersSoForJointCalendars) {
  RandomNumbers random(19990101);
  for (std::int64_t asked = 0; asked < Questions(); asked += kQuestionsToACalendar) {
    const auto left = RandomYears(random);
    const auto right = RandomYears(random);
    const JointCalendar joint({BusinessCalendar("AAA", left), BusinessCalendar("BBB", right)});
    const NaiveDays naive{NaiveDays(left), NaiveDays(right)};
    for (std::int64_t question = 0; question < kQuestionsToACalendar; question += 7) {
      ExpectSameAnswers(joint, naive, random);
      if (HasFatalFailure()) return;
    }
  }
}

TEST(BusinessDaysProperty, JoiningIsCommutativeAssociativeAndIdempotent) {
  RandomNumbers random(7);
  for (int round = 0; round < 20; ++round) {
    const BusinessCalendar a("AAA", RandomYears(random));
    const BusinessCalendar b("BBB", RandomYears(random));
    const BusinessCalendar c("CCC", RandomYears(random));
    const JointCalendar abc({a, b, c});
    for (const JointCalendar& same : {JointCalendar({c, b, a}), JointCalendar({b, a, b, c, a})}) {
      for (sys_days day = std::chrono::year{2018} / 1 / 1; day < sys_days(std::chrono::year{2030} / 1 / 1);
           day += std::chrono::days(1)) {
        ASSERT_EQ(same.State(day), abc.State(day)) << NumberOf(day);
      }
    }
  }
}

TEST(BusinessDaysProperty, AdjustingTwiceIsAdjustingOnce) {
  RandomNumbers random(8);
  const BusinessCalendar calendar("AAA", RandomYears(random));
  for (int round = 0; round < 5'000; ++round) {
    const sys_days day = RandomDay(random);
    const Convention convention = RandomConvention(random);
    const Answer once = AnswerOf([&] { return calendar.Adjust(day, convention); });
    const auto* number = std::get_if<std::int64_t>(&once);
    if (number == nullptr) continue;
    const sys_days adjusted{std::chrono::days(*number)};
    ASSERT_EQ(calendar.Adjust(adjusted, convention), adjusted);
  }
}

TEST(BusinessDaysProperty, AddingAndTakingAwayComesBackToABusinessDay) {
  RandomNumbers random(9);
  const BusinessCalendar calendar("AAA", RandomYears(random));
  int tried = 0;
  while (tried < 2'000) {
    const sys_days day = RandomDay(random);
    if (calendar.State(day) != DayState::kOpen) continue;
    const std::int32_t count = RandomCount(random);
    const Answer there = AnswerOf([&] { return calendar.AddBusinessDays(day, count); });
    ++tried;
    const auto* number = std::get_if<std::int64_t>(&there);
    if (number == nullptr) continue;
    const sys_days target{std::chrono::days(*number)};
    ASSERT_EQ(calendar.AddBusinessDays(target, -count), day);
    ASSERT_EQ(calendar.BusinessDaysBetween(day, target), count);
  }
}

}  // namespace
}  // namespace ferrowind::business_days
