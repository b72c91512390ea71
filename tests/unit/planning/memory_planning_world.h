#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "ferrowind/adapters/headless/world.h"
#include "ferrowind/data/module_state.h"
#include "ferrowind/planning/book_store.h"
#include "ferrowind/planning/calendar_store.h"
#include "ferrowind/planning/database_call.h"

#include "tests/unit/almanac/small_calendars.h"

namespace ferrowind::planning {

inline constexpr std::int32_t kEuro = 978;
inline constexpr std::int32_t kDollar = 840;

/// A memory database with all procedures and books of lines of a test's own; on the thread that makes it.
class MemoryPlanningWorld {
 public:
  explicit MemoryPlanningWorld(platform::ActionObserver* action_observer = nullptr) : world(action_observer) {
    AttachPlatform(platform);
    EnsureDictionaryObject();
  }

  /// A weekday that is closed only in years that no test looks at stands behind `lines`: a book needs one.
  static void GiveBook(std::int32_t currency, const std::string& code, const std::string& lines) {
    const auto stored = LoadBook(currency, code, {});
    StoreBook(currency, code, stored ? stored->fingerprint : "",
              almanac::BookOf(lines + "weekday | Monday | weekday Monday to 1950 |\n"));
  }

  /// As an operator does whom nothing here knows of.
  static void Call(const std::string& procedure,
                   const std::vector<std::pair<const char*, platform::Value>>& values) {
    SourceValues parameters;
    for (const auto& [name, value] : values) parameters.Add(name, value);
    (void)CallDatabase("Changing the database", procedure, parameters);
  }
  static void CreateCalendar(std::int32_t currency, std::int32_t year) {
    Call("CldIUMain", {{"ID1", currency}, {"Year1", year}});
  }
  /// Makes the day, written YYYY-MM-DD, a working day by exception.
  static void Except(std::int32_t currency, const char* iso, const std::string& reason) {
    Assign(currency, iso, 1, almanac::kExceptionRule, reason);
  }
  static void Assign(std::int32_t currency, const char* iso, std::int32_t type, std::int32_t rule,
                     const std::string& comment = {}) {
    const platform::Date date = *platform::Date::FromIso(iso);
    Call("CldIUMain", {{"ID1", currency},
                       {"Year1", date.Year()},
                       {"TID1", type},
                       {"ID2", rule},
                       {"Day1", date.DayOfYear()},
                       {"ODate", date},
                       {"Comment", comment}});
  }
  /// The number of the new point.
  static std::int32_t AddPoint(const std::string& name, const char* iso) {
    const platform::Date date = *platform::Date::FromIso(iso);
    Call("CldIUCelebrate",
         {{"Name1", name}, {"TID1", 4}, {"D1", date}, {"MY", date.Month()}, {"MD", date.Day()}});
    const auto rules = LoadRules().rules;
    return almanac::RuleDirectory(rules).FindNamed(name)->id;
  }

  /// "2028-12-25 Christmas Day" for each day of the calendar that has a rule.
  static std::vector<std::string> DaysOf(const std::string& code, std::int32_t currency, int year) {
    const almanac::RuleDirectory rules(LoadRules().rules);
    std::vector<std::string> days;
    const StoredCalendar calendar = LoadCalendar({currency, code, code, true, {}}, year);
    for (const almanac::MarkedDay& day : calendar.content.days) {
      days.push_back(platform::Date(year, 1, 1).AddDays(day.day_of_year - 1).ToIso() + " " +
                     rules.Find(day.rule)->name);
    }
    return days;
  }

  headless::World world;
  const platform::Platform platform = world.PlatformOnMemory();
};

}  // namespace ferrowind::planning
