// Questions about business days against QuantLib and against hash sets of closed days as people write them by
// hand, all on the same days.

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <ql/time/calendars/japan.hpp>
#include <ql/time/calendars/jointcalendar.hpp>
#include <ql/time/calendars/switzerland.hpp>
#include <ql/time/calendars/target.hpp>
#include <ql/time/calendars/unitedkingdom.hpp>
#include <ql/time/calendars/unitedstates.hpp>
#include <stdexcept>
#include <string>
#include <unordered_set>
#include <utility>
#include <vector>

#include "ferrowind/almanac/planner.h"
#include "ferrowind/business_days/business_calendar.h"
#include "ferrowind/business_days/calendar_set.h"
#include "ferrowind/business_days/joint_calendar.h"
#include "ferrowind/business_days/value_dates.h"

#include "bench/measurement.h"
#include "database/seed/delivered_conventions.h"
#include "host/delivery/delivered_books.h"
#include "host/delivery/delivered_tables.h"

namespace {

using ferrowind::almanac::Planner;
using ferrowind::almanac::RuleKind;
using ferrowind::almanac::YearPlan;
using ferrowind::bench::Benchmark;
using ferrowind::bench::KeepResult;
using ferrowind::business_days::BusinessCalendar;
using ferrowind::business_days::CalendarSet;
using ferrowind::business_days::Convention;
using ferrowind::business_days::JointCalendar;
using ferrowind::business_days::PreparedYear;
using ferrowind::business_days::ValueDates;
using std::chrono::days;
using std::chrono::sys_days;

constexpr int kFirstYear = 2015;
constexpr int kLastYear = 2030;
constexpr std::size_t kQuestions = 2'000;

const std::vector<std::string>& Codes() {
  static const std::vector<std::string> codes = {"EUR", "JPY", "USD", "GBP", "CHF"};
  return codes;
}

std::vector<PreparedYear> YearsOf(const std::string& code) {
  for (auto& delivered : ferrowind::host::DeliveredBooks()) {
    if (delivered.name != code) continue;
    const Planner planner(std::move(delivered.book), ferrowind::host::DeliveredDateTables());
    std::vector<PreparedYear> years;
    for (int number = kFirstYear; number <= kLastYear; ++number) {
      const std::chrono::year year(number);
      PreparedYear prepared{year, std::string(year.is_leap() ? 366 : 365, '0')};
      const YearPlan plan = planner.Plan(number);
      for (const auto& day : plan.Days()) {
        if (plan.KindOf(day) != RuleKind::kWorkingDay)
          prepared.days.at(static_cast<std::size_t>(day.day_of_year) - 1) = '1';
      }
      years.push_back(std::move(prepared));
    }
    return years;
  }
  throw std::runtime_error("no delivered book " + code);
}

CalendarSet Calendars() {
  std::vector<BusinessCalendar> calendars;
  for (const std::string& code : Codes()) calendars.emplace_back(code, YearsOf(code));
  return CalendarSet(calendars);
}

/// Closed days by their number since 1970, as a program without this library keeps them.
class HashedDays {
 public:
  explicit HashedDays(const BusinessCalendar& calendar) {
    const auto horizon = calendar.Horizon();
    if (!horizon) throw std::runtime_error(calendar.Code() + " has no year");
    for (const sys_days day : calendar.ClosedDays(horizon->first, horizon->last))
      closed_.insert(day.time_since_epoch().count());
  }

  [[nodiscard]] bool IsOpen(sys_days day) const { return !closed_.contains(day.time_since_epoch().count()); }

 private:
  std::unordered_set<std::int64_t> closed_;
};

/// Several of them together.
class HashedTogether {
 public:
  HashedTogether(const CalendarSet& calendars, const std::vector<std::string>& codes) {
    for (const std::string& code : codes) members_.emplace_back(calendars.Of(code));
  }

  [[nodiscard]] bool IsOpen(sys_days day) const {
    for (const HashedDays& member : members_) {
      if (!member.IsOpen(day)) return false;
    }
    return true;
  }
  [[nodiscard]] sys_days Following(sys_days day) const {
    while (!IsOpen(day)) day += days(1);
    return day;
  }
  [[nodiscard]] sys_days Add(sys_days day, int count) const {
    while (count > 0) {
      day += days(1);
      if (IsOpen(day)) --count;
    }
    return day;
  }
  [[nodiscard]] int Between(sys_days from, sys_days to) const {
    int count = 0;
    while (from < to) {
      from += days(1);
      if (IsOpen(from)) ++count;
    }
    return count;
  }

 private:
  std::vector<HashedDays> members_;
};

QuantLib::Calendar PeerOf(const std::string& code) {
  static const std::map<std::string, QuantLib::Calendar> peers = {
      {"EUR", QuantLib::TARGET()},
      {"JPY", QuantLib::Japan()},
      {"USD", QuantLib::UnitedStates(QuantLib::UnitedStates::FederalReserve)},
      {"GBP", QuantLib::UnitedKingdom(QuantLib::UnitedKingdom::Settlement)},
      {"CHF", QuantLib::Switzerland()}};
  return peers.at(code);
}

/// Days of 2016 to 2027, spread so that no question helps the next.
struct AskedDays {
  std::vector<sys_days> ours;
  std::vector<QuantLib::Date> peers;
};

AskedDays Asked() {
  AskedDays asked;
  const sys_days first = std::chrono::year(2016) / 1 / 1;
  for (std::size_t number = 0; number < kQuestions; ++number) {
    const sys_days day = first + days(static_cast<int>(number * 1'237 % 4'383));
    const std::chrono::year_month_day date(day);
    asked.ours.push_back(day);
    asked.peers.emplace_back(static_cast<int>(static_cast<unsigned>(date.day())),
                             static_cast<QuantLib::Month>(static_cast<unsigned>(date.month())),
                             static_cast<int>(date.year()));
  }
  return asked;
}

std::size_t NumberOf(sys_days day) { return static_cast<std::size_t>(day.time_since_epoch().count()); }
std::size_t NumberOf(const QuantLib::Date& date) { return static_cast<std::size_t>(date.serialNumber()); }
std::size_t NumberOf(std::int64_t number) { return static_cast<std::size_t>(number); }

/// What is asked of one day, `rounds` times of all days, so that a run takes long enough to be measured.
template <typename Days, typename Question>
std::function<void()> Asking(const Days& asked, int rounds, Question question) {
  return [&asked, rounds, question] {
    std::size_t sum = 0;
    for (int round = 0; round < rounds; ++round) {
      for (const auto& day : asked) sum += NumberOf(question(day));
    }
    KeepResult(sum);
  };
}

struct Limits {
  double of_library;
  double of_hash_set;
};

class Questions {
 public:
  explicit Questions(const Benchmark& benchmark) : benchmark_(benchmark), asked_(Asked()) {}

  /// The sides answer alike where `is_same` says so; the calendars of the peer are not always those of the
  /// books, so it is asked only of the hash set.
  template <typename Ours, typename Library, typename HashSet>
  void Compare(const std::string& name, Limits limits, int rounds, Ours ours, Library library,
               HashSet hash_set) {
    for (const sys_days day : asked_.ours) {
      if (NumberOf(ours(day)) != NumberOf(hash_set(day)))
        throw std::runtime_error("the sides differ in " + name);
    }
    const auto our_side = Asking(asked_.ours, rounds, ours);
    benchmark_.Compare(name + ", of QuantLib", limits.of_library, {our_side},
                       {Asking(asked_.peers, rounds, library)});
    benchmark_.Compare(name + ", of a hash set", limits.of_hash_set, {our_side},
                       {Asking(asked_.ours, rounds, hash_set)});
  }

 private:
  const Benchmark& benchmark_;
  AskedDays asked_;
};

void CompareSpot(Questions& questions, const CalendarSet& calendars) {
  const ValueDates dates(
      {"EUR", "JPY"}, calendars,
      ferrowind::business_days::ReadMarketConventions(ferrowind::embedded::kMarketConventions));
  const QuantLib::Calendar euro = PeerOf("EUR");
  const QuantLib::Calendar yen = PeerOf("JPY");
  const QuantLib::JointCalendar both(euro, yen);
  const QuantLib::JointCalendar settlement(euro, yen, PeerOf("USD"));
  const HashedTogether hashed_euro(calendars, {"EUR"});
  const HashedTogether hashed_yen(calendars, {"JPY"});
  const HashedTogether hashed_both(calendars, {"EUR", "JPY"});
  const HashedTogether hashed_settlement(calendars, {"EUR", "JPY", "USD"});
  questions.Compare(
      "spot date of EUR/JPY", {0.05, 0.5}, 20, [&](sys_days day) { return dates.SpotDate(day); },
      [&](const QuantLib::Date& day) {
        const QuantLib::Date start = both.adjust(day, QuantLib::Following);
        return settlement.adjust(
            std::max(euro.advance(start, 2, QuantLib::Days), yen.advance(start, 2, QuantLib::Days)),
            QuantLib::Following);
      },
      [&](sys_days day) {
        const sys_days start = hashed_both.Following(day);
        return hashed_settlement.Following(std::max(hashed_euro.Add(start, 2), hashed_yen.Add(start, 2)));
      });
}

void Measure(const Benchmark& benchmark) {
  const CalendarSet calendars = Calendars();
  Questions questions(benchmark);
  const BusinessCalendar& euro = calendars.Of("EUR");
  const HashedTogether hashed_euro(calendars, {"EUR"});
  const QuantLib::Calendar target = PeerOf("EUR");
  questions.Compare(
      "is it a business day, one currency", {0.02, 0.3}, 200,
      [&](sys_days day) { return std::int64_t{euro.IsBusinessDay(day)}; },
      [&](const QuantLib::Date& day) { return std::int64_t{target.isBusinessDay(day)}; },
      [&](sys_days day) { return std::int64_t{hashed_euro.IsOpen(day)}; });

  const JointCalendar five = calendars.Joint(Codes());
  const HashedTogether hashed_five(calendars, Codes());
  const QuantLib::JointCalendar peer_five(
      std::vector{PeerOf("EUR"), PeerOf("JPY"), PeerOf("USD"), PeerOf("GBP"), PeerOf("CHF")});
  questions.Compare(
      "is it a business day, joint of five", {0.005, 0.1}, 200,
      [&](sys_days day) { return std::int64_t{five.IsBusinessDay(day)}; },
      [&](const QuantLib::Date& day) { return std::int64_t{peer_five.isBusinessDay(day)}; },
      [&](sys_days day) { return std::int64_t{hashed_five.IsOpen(day)}; });

  const std::vector<std::string> two = {"EUR", "USD"};
  const JointCalendar joint = calendars.Joint(two);
  const HashedTogether hashed(calendars, two);
  const QuantLib::JointCalendar peer(PeerOf("EUR"), PeerOf("USD"));
  questions.Compare(
      "adjust Following, joint of two", {0.02, 0.3}, 100,
      [&](sys_days day) { return joint.Adjust(day, Convention::kFollowing); },
      [&](const QuantLib::Date& day) { return peer.adjust(day, QuantLib::Following); },
      [&](sys_days day) { return hashed.Following(day); });
  CompareSpot(questions, calendars);
  questions.Compare(
      "add 30 business days, joint of two", {0.005, 0.05}, 10,
      [&](sys_days day) { return joint.AddBusinessDays(day, 30); },
      [&](const QuantLib::Date& day) { return peer.advance(day, 30, QuantLib::Days); },
      [&](sys_days day) { return hashed.Add(day, 30); });
  questions.Compare(
      "business days between, two years apart", {0.0005, 0.005}, 1,
      [&](sys_days day) { return std::int64_t{joint.BusinessDaysBetween(day, day + days(730))}; },
      [&](const QuantLib::Date& day) {
        return static_cast<std::int64_t>(peer.businessDaysBetween(day, day + 730, false, true));
      },
      [&](sys_days day) { return std::int64_t{hashed.Between(day, day + days(730))}; });
}

}  // namespace

int main(int argc, char** argv) { return ferrowind::bench::RunBenchmark(argc, argv, Measure); }
