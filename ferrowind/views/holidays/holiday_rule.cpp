#include "ferrowind/views/holidays/holiday_rule.h"

#include <memory>

#include "ferrowind/data/exec_proc.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/views/common/holiday_types.h"
#include "ferrowind/views/holidays/holidays_window.h"

namespace ferrowind {
namespace {

/// `day_of_year` 0 gives no day; `date` is given for the rules that fall on one.
std::int32_t StoreAssignment(const HolidayRule& rule, const AssignmentTarget& target,
                             std::int32_t day_of_year, const std::optional<platform::Date>& date) {
  SourceValues params;
  params.Add("TID1", platform::ToInt32(rule.type));
  params.Add("ID1", target.currency_id);
  params.Add("ID2", platform::ToInt32(rule.id));
  params.Add("Year1", target.year);
  if (day_of_year != 0) params.Add("Day1", day_of_year);
  if (date) {
    const platform::Date in_year = date->AddYears(target.year - date->Year());
    params.Add("ODate", in_year);
    params.Add("Day1", in_year.DayOfYear());
  }
  std::shared_ptr<SourceValues> results;
  return ExecProc("CldIUMain", &params, results);
}

}  // namespace

std::optional<std::int32_t> AssignRule(const HolidayRule& rule, const AssignmentTarget& target) {
  switch (platform::ToInt32(rule.type)) {
    case holiday_type::kWeekday:
      return StoreAssignment(rule, target, target.mode == kWholeCalendarMode ? 0 : target.day_of_year,
                             std::nullopt);
    case holiday_type::kFullDate:
    case holiday_type::kHolidayPoint:
      return StoreAssignment(rule, target, 0, platform::ToDate(rule.full_date));
    default:
      return std::nullopt;
  }
}

std::int32_t MarkRule(const HolidayRule& rule, std::int16_t mark) {
  SourceValues params;
  params.Add("ID2", platform::ToInt32(rule.id));
  params.Add("Del", mark);
  std::shared_ptr<SourceValues> results;
  return ExecProc("CldIUCelebrate", &params, results);
}

}  // namespace ferrowind
