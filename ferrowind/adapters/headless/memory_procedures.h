#pragma once

namespace ferrowind::headless {

class MemoryDatabase;

/// Adds `CldAllInfo`, `CldGetMain`, `CldIUMain` and `CldIUCelebrate`.
void AddCalendarProcedures(MemoryDatabase& database);
/// Adds `CldGetBook` and `CldIUBook`.
void AddBookProcedures(MemoryDatabase& database);
/// Adds `CldGetFingerprint` and `CldApplyPlan`.
void AddPlanProcedures(MemoryDatabase& database);
/// Adds `CldUndo`, on the history of `database`.
void AddUndoProcedure(MemoryDatabase& database);
/// Adds `CldGetHistory` and `CldGetAsOf`, on the history of `database`.
void AddPastProcedures(MemoryDatabase& database);
/// Adds `CldGetClosedDays` and `CldGetMarkedDays`.
void AddYearProcedures(MemoryDatabase& database);
/// Adds `CldGetContent`.
void AddContentProcedure(MemoryDatabase& database);
/// Adds `CldIUCurrency` and `CldGetCurrencies`.
void AddCurrencyProcedures(MemoryDatabase& database);
/// Adds `CldIUConvention` and `CldGetConventions`.
void AddConventionProcedures(MemoryDatabase& database);

}  // namespace ferrowind::headless
