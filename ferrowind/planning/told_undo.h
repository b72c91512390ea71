#pragma once

#include <string>

#include "ferrowind/planning/currency_list.h"
#include "ferrowind/planning/history_store.h"

namespace ferrowind::planning {

/// As `UndoEntry`, told to the host as an action of its own (told_write.h).
[[nodiscard]] UndoOutcome UndoTold(const HistoryEntry& entry, const CurrencyList& currencies,
                                   const std::string& what = {});

}  // namespace ferrowind::planning
