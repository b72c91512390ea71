#pragma once

#include <vector>

#include "ferrowind/almanac/rule_dates.h"
#include "ferrowind/platform/platform.h"

namespace ferrowind {

/// The table of the rule book window that shows on which days a rule stands in each year.
class RuleYearsTable {
 public:
  /// Both must outlive this.
  RuleYearsTable(const platform::Platform& platform, platform::Table& table);

  /// A row a date; a year of very many dates, such as every Saturday, is one row that counts them.
  void Show(const std::vector<almanac::RuleYear>& years);

 private:
  [[nodiscard]] platform::TableRow RowOf(const almanac::RuleYear& year, const almanac::RuleDate& date) const;
  [[nodiscard]] platform::TableRow CountOf(const almanac::RuleYear& year) const;
  [[nodiscard]] platform::TableRow RowWithoutDate(int year, const char* text, platform::CellMark mark) const;

  const platform::Platform& platform_;
  platform::Table& table_;
};

}  // namespace ferrowind
