#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "ferrowind/platform/values/date.h"

/// Lists of days as publishers and calendar programs exchange them.
namespace ferrowind::exchange {

/// What a list says of a day.
enum class ListedKind : std::uint8_t {
  /// Closed.
  kHoliday,
  /// Closed, as every week on that weekday.
  kWeekend,
  /// Open, though one would take it for closed.
  kWorkingDay,
  /// Open for a part of the day.
  kHalfDay,
};

struct ListedDay {
  platform::Date date;
  /// Well-formed UTF-8 without control characters and outer blanks; empty when the list gives none.
  std::string name = {};
  ListedKind kind = ListedKind::kHoliday;
  /// The code of the currency as the list writes it; empty when it gives none.
  std::string currency = {};
  /// Where it stands in the list, from 1 on; 0 when that is not known.
  std::size_t line = 0;

  friend bool operator==(const ListedDay&, const ListedDay&) = default;
};

/// In the order of the list.
struct DayList {
  std::vector<ListedDay> days;
  /// What a reader of the list should know though it could be read, a sentence without a full stop each.
  std::vector<std::string> remarks = {};
};

/// "holiday", "weekend", "working day" or "half day".
[[nodiscard]] std::string_view TextOf(ListedKind kind);

/// "line 7"; "an unknown line" when it is not known.
[[nodiscard]] std::string LineText(std::size_t line);

/// The years that calendars have.
inline constexpr int kFirstListedYear = 1900;
inline constexpr int kLastListedYear = 3000;

}  // namespace ferrowind::exchange
