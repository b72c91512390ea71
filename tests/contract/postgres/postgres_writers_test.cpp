// Sixteen operators who change the same four calendars and the same rules for a while, with calls of every
// kind. Ten seconds, or as many as FERROWIND_WRITER_SECONDS says.

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <map>
#include <random>
#include <set>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"

#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/postgres/postgres_database.h"
#include "tests/contract/postgres/postgres_server.h"

namespace ferrowind::contract {
namespace {

using platform::Date;
using platform::Value;
using ::testing::Contains;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr int kWriters = 16;
constexpr int kDaysOfAYear = 365;

struct Calendar {
  int currency;
  int year;
};
constexpr Calendar kCalendars[] = {{978, 2026}, {840, 2026}, {978, 2027}, {826, 2027}};

/// Rules that are there from the start: weekday rules for the weekdays 1 to 7, then one for a date.
constexpr int kFirstWeekdayRule = 2;
constexpr int kDateRule = 9;

std::string WeekdayRuleName(int weekday) { return "Weekday " + std::to_string(weekday); }

std::chrono::seconds Duration() {
  const char* const seconds = std::getenv("FERROWIND_WRITER_SECONDS");
  return std::chrono::seconds(seconds != nullptr ? std::stoi(seconds) : 10);
}

/// What the successful calls of a writer, or of all of them, have done.
struct Deeds {
  /// The comment that was last given to: an own day by calendar and number, the days of a weekday by calendar
  /// and weekday, and a rule. Of several writers, each one's last.
  std::map<std::pair<std::size_t, int>, std::set<std::string>> day_comments;
  std::map<std::pair<std::size_t, int>, std::set<std::string>> weekday_comments;
  std::map<int, std::set<std::string>> rule_comments;
  /// Names of added rules and created calendars, one for each success.
  std::multiset<std::string> rules;
  std::multiset<std::pair<int, int>> calendars;
  /// The comments of all changing calls, each unique.
  std::set<std::string> comments;
  std::int64_t calls = 0;
  std::int64_t changes = 0;
  /// What must not happen.
  std::vector<std::string> faults;

  void Merge(const Deeds& other) {
    const auto merge_sets = [](auto& into, const auto& from) {
      for (const auto& [key, values] : from) into[key].insert(values.begin(), values.end());
    };
    merge_sets(day_comments, other.day_comments);
    merge_sets(weekday_comments, other.weekday_comments);
    merge_sets(rule_comments, other.rule_comments);
    rules.insert(other.rules.begin(), other.rules.end());
    calendars.insert(other.calendars.begin(), other.calendars.end());
    comments.insert(other.comments.begin(), other.comments.end());
    calls += other.calls;
    changes += other.changes;
    faults.insert(faults.end(), other.faults.begin(), other.faults.end());
  }
};

/// An operator at work. Every writer has days of its own in each calendar, which nobody else's calls change;
/// everything else it shares with the others.
class Writer {
 public:
  Writer(DatabaseUnderTest& database, int number)
      : caller_(database), number_(number), random_(static_cast<unsigned>(number)) {}

  void WorkUntil(std::chrono::steady_clock::time_point end) {
    while (std::chrono::steady_clock::now() < end && deeds_.faults.size() < 5) Step();
  }

  [[nodiscard]] const Deeds& Done() const { return deeds_; }

 private:
  int Pick(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }
  std::size_t PickCalendar() { return static_cast<std::size_t>(Pick(std::size(kCalendars))); }
  int PickOwnDay() { return 1 + number_ + kWriters * Pick((kDaysOfAYear - number_) / kWriters); }
  std::string NewComment() { return std::to_string(number_) + "." + std::to_string(++comments_); }

  void Step() {
    const int kind = Pick(16);
    if (kind < 4) return MarkOwnDay();
    if (kind < 7) return AssignWeekdayRule();
    if (kind < 8) return AddRule("Own " + NewComment(), {0});
    if (kind < 9) return AddRule("Shared " + std::to_string(Pick(200)), {0, 2});
    if (kind < 10) return EditRule();
    if (kind < 11) return RemoveOrRestoreRule();
    if (kind < 13) return CreateCalendar();
    if (kind < 15) return ReadCalendar();
    ReadEverything();
  }

  /// The outcome of a call that may return one of `allowed`; every other outcome is a fault.
  platform::CallOutcome Call(const std::string& procedure, const Arguments& arguments,
                             const std::vector<int>& allowed) {
    platform::CallOutcome outcome;
    outcome.return_value = -1;
    ++deeds_.calls;
    const std::string failure = FailureTextOf([&] { outcome = caller_.Call(procedure, arguments); });
    if (!failure.empty()) {
      deeds_.faults.push_back(failure);
    } else if (std::find(allowed.begin(), allowed.end(), outcome.return_value) == allowed.end()) {
      deeds_.faults.push_back(procedure + " returned " + std::to_string(outcome.return_value) + " to " +
                              ::testing::PrintToString(arguments));
    }
    return outcome;
  }

  /// Whether a changing call returned 0.
  bool Change(const std::string& procedure, const Arguments& arguments, const std::vector<int>& allowed) {
    if (Call(procedure, arguments, allowed).return_value != 0) return false;
    ++deeds_.changes;
    return true;
  }

  void MarkOwnDay() {
    const std::size_t calendar = PickCalendar();
    const auto [currency, year] = kCalendars[calendar];
    const int day = PickOwnDay();
    const bool is_exception = Pick(2) == 0;
    const std::string comment = NewComment();
    if (!Change("CldIUMain",
                {{"ID1", currency},
                 {"Year1", year},
                 {"TID1", is_exception ? 1 : 3},
                 {"ID2", is_exception ? 1 : kDateRule},
                 {"Day1", day},
                 {"ODate", Date(year, 1, 1).AddDays(day - 1)},
                 {"Comment", comment}},
                {0})) {
      return;
    }
    deeds_.comments.insert(comment);
    deeds_.day_comments[{calendar, day}] = {comment};
  }

  void AssignWeekdayRule() {
    const std::size_t calendar = PickCalendar();
    const int weekday = 1 + Pick(7);
    const std::string comment = NewComment();
    if (!Change("CldIUMain",
                {{"ID1", kCalendars[calendar].currency},
                 {"Year1", kCalendars[calendar].year},
                 {"TID1", 2},
                 {"ID2", kFirstWeekdayRule + weekday - 1},
                 {"Comment", comment}},
                {0, 4})) {
      return;
    }
    deeds_.comments.insert(comment);
    deeds_.weekday_comments[{calendar, weekday}] = {comment};
  }

  void AddRule(const std::string& name, const std::vector<int>& allowed) {
    if (Change("CldIUCelebrate", {{"Name1", name}, {"TID1", 2}, {"WD", 1 + Pick(7)}}, allowed)) {
      deeds_.rules.insert(name);
    }
  }

  void EditRule() {
    const int weekday = 1 + Pick(7);
    const int rule = kFirstWeekdayRule + weekday - 1;
    const std::string comment = NewComment();
    if (!Change("CldIUCelebrate",
                {{"Name1", WeekdayRuleName(weekday)},
                 {"TID1", 2},
                 {"WD", weekday},
                 {"ID2", rule},
                 {"Comment", comment}},
                {0})) {
      return;
    }
    deeds_.comments.insert(comment);
    deeds_.rule_comments[rule] = {comment};
  }

  void RemoveOrRestoreRule() {
    // Restored more often than removed, so that assignments mostly find their rule.
    Change("CldIUCelebrate", {{"ID2", kFirstWeekdayRule + Pick(7)}, {"Del", Pick(4) == 0 ? 2 : 4}}, {0});
  }

  void CreateCalendar() {
    const std::pair<int, int> calendar = {Pick(2) == 0 ? 756 : 392, 1900 + Pick(300)};
    if (Change("CldIUMain", {{"ID1", calendar.first}, {"Year1", calendar.second}}, {0, 6})) {
      deeds_.calendars.insert(calendar);
    }
  }

  /// The calendar is whole, and the own days are as they were left.
  void ReadCalendar() {
    const std::size_t calendar = PickCalendar();
    const auto outcome = Call(
        "CldGetMain", {{"ID1", kCalendars[calendar].currency}, {"Year1", kCalendars[calendar].year}}, {0});
    if (outcome.return_value != 0) return;
    const Row comments = ColumnOf(*outcome.record_sets.at(0), "Comment");
    if (comments.size() != kDaysOfAYear) deeds_.faults.emplace_back("a calendar was read in part");
    for (const auto& [place, expected] : deeds_.day_comments) {
      if (place.first != calendar) continue;
      const auto found = platform::ToTextOrEmpty(comments.at(static_cast<std::size_t>(place.second) - 1));
      if (!expected.contains(found)) deeds_.faults.push_back("the day of " + *expected.begin() + " is lost");
    }
  }

  void ReadEverything() {
    const auto outcome = Call("CldAllInfo", {}, {0});
    if (outcome.return_value != 0) return;
    const Row names = ColumnOf(*outcome.record_sets.at(2), "Name1");
    for (const auto& name : deeds_.rules) {
      if (std::find(names.begin(), names.end(), Value(name)) == names.end()) {
        deeds_.faults.push_back("the rule " + name + " is lost");
      }
    }
  }

  ProcedureCaller caller_;
  int number_;
  int comments_ = 0;
  std::mt19937 random_;
  Deeds deeds_;
};

/// Makes the rules and the calendars that the writers find. Returns how many calls that took.
std::int64_t Prepare(PostgresDatabase& database) {
  ProcedureCaller caller(database);
  std::int64_t calls = 0;
  const auto make = [&](const std::string& procedure, const Arguments& arguments) {
    EXPECT_EQ(caller.Return(procedure, arguments), 0);
    ++calls;
  };
  for (int weekday = 1; weekday <= 7; ++weekday) {
    make("CldIUCelebrate", {{"Name1", WeekdayRuleName(weekday)}, {"TID1", 2}, {"WD", weekday}});
  }
  make("CldIUCelebrate", {{"Name1", "Date"}, {"TID1", 3}, {"D1", Date(2026, 5, 1)}, {"MY", 5}, {"MD", 1}});
  for (const auto& [currency, year] : kCalendars) {
    make("CldIUMain", {{"ID1", currency}, {"Year1", year}});
  }
  return calls;
}

/// Every comment in the four calendars is the last one that somebody gave there.
void ExpectLastComments(PostgresDatabase& database, const Deeds& all) {
  ProcedureCaller caller(database);
  for (std::size_t calendar = 0; calendar < std::size(kCalendars); ++calendar) {
    const auto [currency, year] = kCalendars[calendar];
    SCOPED_TRACE(std::to_string(currency) + " " + std::to_string(year));
    const auto outcome = caller.Call("CldGetMain", {{"ID1", currency}, {"Year1", year}});
    const Row types = ColumnOf(*outcome.record_sets.at(0), "TID1");
    const Row rules = ColumnOf(*outcome.record_sets.at(0), "ID2");
    const Row comments = ColumnOf(*outcome.record_sets.at(0), "Comment");
    std::map<int, std::set<std::string>> of_weekdays;
    for (int day = 1; day <= kDaysOfAYear; ++day) {
      const auto row = static_cast<std::size_t>(day) - 1;
      const auto own = all.day_comments.find({calendar, day});
      if (own != all.day_comments.end()) {
        EXPECT_THAT(own->second, Contains(platform::ToTextOrEmpty(comments[row]))) << "day " << day;
      } else if (types[row] == Value(2)) {
        of_weekdays[platform::ToInt32(rules[row]) - kFirstWeekdayRule + 1].insert(
            platform::ToTextOrEmpty(comments[row]));
      }
    }
    for (const auto& [weekday, found] : of_weekdays) {
      ASSERT_THAT(found, SizeIs(1)) << "the days of weekday " << weekday << " are from different calls";
      EXPECT_THAT(all.weekday_comments.at({calendar, weekday}), Contains(*found.begin()));
    }
  }
  for (const auto& [rule, expected] : all.rule_comments) {
    EXPECT_THAT(expected, Contains(postgres_server::Ask(
                              database.Name(), "SELECT Comment FROM ferrowind.CldHoliday WHERE ID2 = " +
                                                   std::to_string(rule))));
  }
}

TEST(PostgresWriters, SixteenWhoChangeFourCalendarsLoseNothingAndNeverMeetADeadlock) {
  PostgresDatabase database;
  const std::int64_t prepared = Prepare(database);
  std::vector<Writer> writers;
  for (int number = 0; number < kWriters; ++number) writers.emplace_back(database, number);
  const auto end = std::chrono::steady_clock::now() + Duration();
  std::vector<std::thread> threads;
  for (auto& writer : writers) threads.emplace_back([&] { writer.WorkUntil(end); });
  for (auto& thread : threads) thread.join();

  Deeds all;
  for (const auto& writer : writers) {
    EXPECT_GT(writer.Done().changes, 0) << "a writer was shut out";
    all.Merge(writer.Done());
  }
  std::cout << all.calls << " calls, " << all.changes << " of which changed something\n";
  EXPECT_THAT(all.faults, IsEmpty());
  ExpectLastComments(database, all);

  const std::string& name = database.Name();
  EXPECT_EQ(std::set<std::string>(all.rules.begin(), all.rules.end()).size(), all.rules.size())
      << "a name was given to two rules";
  EXPECT_EQ(postgres_server::Ask(name, "SELECT count(*) FROM ferrowind.CldHoliday"),
            std::to_string(kDateRule + all.rules.size()));
  EXPECT_EQ(std::set(all.calendars.begin(), all.calendars.end()).size(), all.calendars.size())
      << "a calendar was created twice";
  EXPECT_EQ(postgres_server::Ask(name, "SELECT count(*) FROM ferrowind.CldCalendar"),
            std::to_string(std::size(kCalendars) + all.calendars.size()));
  EXPECT_EQ(postgres_server::Ask(name, "SELECT count(*) FROM ferrowind.CldHistory"),
            std::to_string(prepared + all.changes));
  EXPECT_EQ(
      postgres_server::Ask(name, "SELECT count(DISTINCT Parameters ->> 'Comment') FROM ferrowind.CldHistory"),
      std::to_string(all.comments.size()));
  EXPECT_TRUE(database.IsSound());
}

}  // namespace
}  // namespace ferrowind::contract
