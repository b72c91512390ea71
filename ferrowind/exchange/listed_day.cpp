#include "ferrowind/exchange/listed_day.h"

namespace ferrowind::exchange {

std::string_view TextOf(ListedKind kind) {
  switch (kind) {
    case ListedKind::kHoliday:
      return "holiday";
    case ListedKind::kWeekend:
      return "weekend";
    case ListedKind::kWorkingDay:
      return "working day";
    case ListedKind::kHalfDay:
      return "half day";
  }
  return "";
}

std::string LineText(std::size_t line) {
  return line == 0 ? "an unknown line" : "line " + std::to_string(line);
}

}  // namespace ferrowind::exchange
