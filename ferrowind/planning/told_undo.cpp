#include "ferrowind/planning/told_undo.h"

#include "ferrowind/planning/database_call.h"
#include "ferrowind/planning/told_write.h"

namespace ferrowind::planning {

UndoOutcome UndoTold(const HistoryEntry& entry, const CurrencyList& currencies, const std::string& what) {
  UndoOutcome outcome;
  const std::string currency = entry.currency ? currencies.FindOrNumber(*entry.currency).code : std::string();
  WriteTold(platform::ActionKind::kUndo, {currency, entry.year.value_or(0)}, [&] {
    outcome = UndoEntry(entry, what);
    return outcome.kind == UndoOutcome::Kind::kDone ? return_value::kDone : return_value::kChangedSince;
  });
  return outcome;
}

}  // namespace ferrowind::planning
