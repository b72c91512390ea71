#include "ferrowind/adapters/headless/headless_locale.h"

#include <array>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::headless {
namespace {

constexpr std::array kMonths = {"January", "February", "March",     "April",   "May",      "June",
                                "July",    "August",   "September", "October", "November", "December"};
constexpr std::array kWeekdays = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                  "Thursday", "Friday", "Saturday"};

template <typename Names>
std::string NameAt(const Names& names, int number) {
  if (number < 1 || number > static_cast<int>(names.size())) throw platform::InvalidArgument();
  return names[static_cast<std::size_t>(number) - 1];
}

}  // namespace

std::string HeadlessLocale::MonthName(int month) const { return NameAt(kMonths, month); }
std::string HeadlessLocale::WeekdayName(int weekday) const { return NameAt(kWeekdays, weekday); }

}  // namespace ferrowind::headless
