#pragma once

#include <map>
#include <span>
#include <string>
#include <vector>

#include "ferrowind/almanac/rule_book.h"
#include "ferrowind/planning/year_planner.h"
#include "ferrowind/platform/values/date.h"

namespace ferrowind::planning {

/// What somebody means by the name of a holiday that days are to be closed as.
struct HolidayName {
  /// As the rule of that name is written, where there is one; without outer blanks.
  std::string name;
  almanac::RuleKind kind = almanac::RuleKind::kPoint;
  /// Whether neither a rule nor a book has the name yet. It becomes that of a holiday point then.
  bool is_new = true;
  /// Why no day can be closed as that, a sentence; empty when days can be.
  std::string refusal = {};
};

/// The names of holidays that rules and books have, for days that are closed by hand.
class HolidayNames {
 public:
  /// The names are those that `planner` knows.
  explicit HolidayNames(const YearPlanner& planner);

  /// Those that all of `days` can be closed as, by the alphabet.
  [[nodiscard]] std::vector<std::string> For(std::span<const platform::Date> days) const;
  /// Names are the same whatever their letter case and outer blanks.
  [[nodiscard]] HolidayName Read(const std::string& typed, std::span<const platform::Date> days) const;

 private:
  struct Use {
    std::string name;
    almanac::RuleKind kind = almanac::RuleKind::kPoint;
    /// Of a celebration whose date is known; otherwise 0.
    int month = 0;
    int day = 0;
    bool is_removed = false;
  };

  void Add(Use use);
  [[nodiscard]] static std::string RefusalOf(const Use& use, std::span<const platform::Date> days);

  /// By the name as it is compared.
  std::map<std::string, Use> uses_;
};

}  // namespace ferrowind::planning
