#include "ferrowind/exchange/list_entry.h"

#include <optional>
#include <string>
#include <utility>

#include "ferrowind/exchange/list_text.h"
#include "ferrowind/exchange/listed_kinds.h"
#include "ferrowind/exchange/written_date.h"

namespace ferrowind::exchange {

void TakeEntry(const ListEntry& entry, DayList& list, ListFaults& faults) {
  const WrittenDate date = ReadWholeDate(entry.date);
  if (!date.date) return faults.Add(entry.line, date.why_not);
  const std::string type = TidyName(entry.type);
  std::optional<ListedKind> kind = KindNamed(type);
  if (!kind) {
    return faults.Add(entry.line,
                      "the type " + Quoted(type) + " is none of holiday, weekend, working day and half day");
  }
  std::string name = TidyName(entry.name);
  if (std::string fault = FaultOfName(name); !fault.empty()) return faults.Add(entry.line, std::move(fault));
  if (kind == ListedKind::kHoliday && SoundsLikeHalfDay(name)) kind = ListedKind::kHalfDay;
  list.days.push_back({*date.date, std::move(name), *kind, TidyName(entry.currency), entry.line});
}

}  // namespace ferrowind::exchange
