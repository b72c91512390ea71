#include "random_calendars.h"

#include <chrono>

namespace ferrowind::business_days {
namespace {

using std::chrono::days;
using std::chrono::sys_days;
using std::chrono::year;
using std::chrono::year_month_day;

bool OneIn(RandomNumbers& random, unsigned count) { return random() % count == 0; }

}  // namespace

std::vector<PreparedYear> RandomYears(RandomNumbers& random) {
  std::vector<PreparedYear> years;
  const unsigned weekend = OneIn(random, 4) ? 5 : 6;
  for (year at{2019}; at <= year{2028}; ++at) {
    if (OneIn(random, 10)) continue;
    PreparedYear prepared{at, {}};
    const bool is_shut = OneIn(random, 25);
    const unsigned shut_month = OneIn(random, 8) ? 1 + static_cast<unsigned>(random() % 12) : 0;
    for (sys_days day = at / 1 / 1; day < sys_days((at + std::chrono::years(1)) / 1 / 1); day += days(1)) {
      const unsigned weekday = std::chrono::weekday(day).c_encoding();
      const bool is_closed = is_shut || static_cast<unsigned>(year_month_day(day).month()) == shut_month ||
                             weekday == weekend || weekday == (weekend + 1) % 7 || OneIn(random, 30);
      prepared.days += is_closed ? '1' : '0';
    }
    years.push_back(std::move(prepared));
  }
  return years;
}

sys_days RandomDay(RandomNumbers& random) {
  return sys_days(year{2018} / 1 / 1) + days(random() % (12 * 365));
}

}  // namespace ferrowind::business_days
