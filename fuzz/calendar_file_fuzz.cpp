// Reads the input as a calendar file: whatever it is, it is either refused with lines of it named, or its
// days are written as a calendar file that is read as the same. It may take a few seconds and no more.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "ferrowind/adapters/icalendar/icalendar_list.h"
#include "ferrowind/exchange/list_faults.h"
#include "ferrowind/exchange/list_text.h"
#include "ferrowind/platform/values/utf8_validation.h"

#include "fuzz/expectation.h"

namespace {

using ferrowind::exchange::DayList;
using ferrowind::exchange::ListedDay;
using ferrowind::exchange::ListError;
using ferrowind::exchange::WantedYears;
using ferrowind::fuzz::Expect;
using ferrowind::platform::IsWellFormedUtf8;

std::optional<DayList> Try(std::string_view text, const std::optional<WantedYears>& wanted) {
  try {
    return ferrowind::icalendar::ReadICalendarList(text, wanted);
  } catch (const ListError& error) {
    const auto lines = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')) + 1;
    for (const auto& fault : error.Faults())
      Expect(fault.line <= lines, "a refusal names a line of the text");
    Expect(IsWellFormedUtf8(error.Description()), "a refusal is UTF-8");
    return std::nullopt;
  }
}

void ExpectTheSame(DayList list) {
  // What a list of many days costs is the business of tests that take their time.
  constexpr std::size_t kMostDays = 50;
  if (list.days.size() > kMostDays) list.days.erase(list.days.begin() + kMostDays, list.days.end());
  for (ListedDay& day : list.days) {
    Expect(IsWellFormedUtf8(day.name) && ferrowind::exchange::FaultOfName(day.name).empty(),
           "a name can be one");
    day.currency = "EUR";
    // One without a name is called by its weekday.
    if (day.name.empty()) day.name = "Day";
    day.line = 0;
  }
  auto again = Try(ferrowind::icalendar::WriteICalendarList(list, {3, "20261122T201530Z"}), std::nullopt);
  Expect(again.has_value(), "a calendar file that is written is read");
  for (ListedDay& day : again->days) day.line = 0;
  Expect(again->days == list.days, "a calendar file that is written is read as the same");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string text;
  try {
    text = ferrowind::exchange::TextOfList(std::string(reinterpret_cast<const char*>(data), size));
  } catch (const ListError&) {
    return 0;
  }
  // One that counts its days ends by itself.
  const bool counts = text.find("COUNT") != std::string::npos;
  const auto wanted = counts ? std::optional<WantedYears>() : std::optional(WantedYears{2027, 2028});
  if (const auto list = Try(text, wanted)) ExpectTheSame(*list);
  return 0;
}
