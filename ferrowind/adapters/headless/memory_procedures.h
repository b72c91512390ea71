#pragma once

namespace ferrowind::headless {

class MemoryDatabase;

/// Adds `CldAllInfo`, `CldGetMain`, `CldIUMain` and `CldIUCelebrate`.
void AddCalendarProcedures(MemoryDatabase& database);

}  // namespace ferrowind::headless
