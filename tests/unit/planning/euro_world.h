#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "ferrowind/adapters/headless/world.h"
#include "ferrowind/data/module_state.h"

namespace ferrowind::planning {

/// The component over a calendar database in memory that has the rules "Saturday" (2), "Sunday" (3),
/// "New Year's Day" (4), "Good Friday" (5) and "Street fair" (6), and a book of EUR with all but the last.
/// Make one on a fresh thread.
class EuroWorld {
 public:
  static constexpr std::int32_t kEuro = 978;

  EuroWorld() {
    AttachPlatform(platform);
    EnsureDictionaryObject();
    static_cast<void>(SharedServicesObject());
    using platform::Date;
    using platform::Value;
    const auto weekday = [](const char* name, int number) {
      headless::MemoryRule rule{.name = name, .type = 2};
      rule.weekday = static_cast<std::int16_t>(number);
      return rule;
    };
    const auto dated = [](const char* name, std::int32_t type, const Date& date) {
      headless::MemoryRule rule{.name = name, .type = type};
      rule.date = date;
      rule.month = static_cast<std::int16_t>(date.Month());
      rule.day = static_cast<std::int16_t>(date.Day());
      return rule;
    };
    Tables().rules[2] = weekday("Saturday", 7);
    Tables().rules[3] = weekday("Sunday", 1);
    Tables().rules[4] = dated("New Year's Day", 3, Date(2026, 1, 1));
    Tables().rules[5] = dated("Good Friday", 4, Date(2026, 4, 3));
    Tables().rules[6] = dated("Street fair", 4, Date(2026, 7, 1));
    headless::MemoryBook book;
    book.publisher = "ECB";
    book.document = "Closing days";
    book.rules = {{"Saturday", 2, "weekday Saturday", {}, {}},
                  {"Sunday", 2, "weekday Sunday", {}, {}},
                  {"New Year's Day", 3, "01-01", {}, {}},
                  {"Good Friday", 4, "easter-2", {}, {}}};
    Tables().books[kEuro] = book;
  }

  /// Makes the calendar of EUR with its weekends.
  void AddYear(int year) {
    auto& days = Tables().calendars[{kEuro, year}];
    days.resize(static_cast<std::size_t>(platform::DaysInYear(year)));
    for (std::size_t i = 0; i < days.size(); ++i) {
      const int weekday = platform::Date(year, 1, 1).AddDays(static_cast<int>(i)).Weekday();
      if (weekday == 7) days[i] = {2, 2, {}};
      if (weekday == 1) days[i] = {2, 3, {}};
    }
  }
  /// Gives a day of a calendar of EUR a rule.
  void Give(const platform::Date& day, std::int32_t rule, const platform::Value& comment = {}) {
    Tables().calendars[{kEuro, day.Year()}][static_cast<std::size_t>(day.DayOfYear()) - 1] = {
        rule == 1 ? 1 : Tables().rules.at(rule).type, rule, comment};
  }
  /// Gives another currency a book with that rule and a weekend.
  void AddBook(std::int32_t currency, const headless::MemoryRecurrence& rule) {
    headless::MemoryBook book;
    book.publisher = "Bank";
    book.document = "Holidays";
    book.rules = {{"Sunday", 2, "weekday Sunday", {}, {}}, rule};
    Tables().books[currency] = book;
  }
  /// By position, as the procedure has its parameters; returns 0.
  void Call(const std::string& procedure, const std::vector<platform::Value>& inputs) {
    EXPECT_EQ(world.database->Call(procedure, inputs).return_value, 0);
  }
  [[nodiscard]] headless::MemoryTables& Tables() { return world.database->Tables(); }

  headless::World world;
  platform::Platform platform = world.PlatformOnMemory();
};

}  // namespace ferrowind::planning
