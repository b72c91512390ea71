#include "ferrowind/business_days/business_calendar.h"

#include <memory>
#include <utility>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::business_days {
namespace {

DayTable TableOf(const std::string& code, std::vector<PreparedYear> years) {
  try {
    return DayTable(std::move(years));
  } catch (const platform::Failure& failure) {
    throw platform::Failure(failure.Number(), code + ": " + failure.Description());
  }
}

}  // namespace

BusinessCalendar::BusinessCalendar(std::string code, std::vector<PreparedYear> years)
    : BusinessDays([&] {
        DayTable days = TableOf(code, std::move(years));
        return std::make_shared<const Content>(Content{std::move(code), std::move(days), {}});
      }()) {}

}  // namespace ferrowind::business_days
