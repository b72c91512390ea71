#pragma once

#include <chrono>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>

#include "ferrowind/export.h"

namespace ferrowind::loading {

/// By which rules days are closed. It never changes once it is loaded, and any number of threads may ask.
class FERROWIND_EXPORT DayNames {
 public:
  /// The record sets of `CldGetClosedDays` say it like this: `days` has '1' for each closed day of the
  /// calendar, and `rules` the numbers of their rules in that order, with commas between.
  void AddYear(const std::string& code, int year, std::string days, std::string rules);
  /// The name of the rule with that number. One that is added again has the new name.
  void AddRule(std::int32_t id, std::string name);

  /// The name of the rule that closes the day for the currency: "Good Friday". Empty for a day of which none
  /// is known.
  [[nodiscard]] std::string Of(std::string_view code, std::chrono::sys_days day) const;

  /// Whether both know the same rules, and the same of every day.
  bool operator==(const DayNames&) const = default;

 private:
  struct Year {
    std::string days;
    std::string rules;

    bool operator==(const Year&) const = default;
  };

  std::map<std::pair<std::string, int>, Year> years_;
  std::map<std::int32_t, std::string> rules_;
};

}  // namespace ferrowind::loading
