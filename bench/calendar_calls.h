#pragma once

#include <cstddef>
#include <functional>
#include <string>

#include "bench/measurement.h"

/// The calls whose time counts: what the component's gateway does on whatever database the calling thread
/// works on (host/session/procedure_session.h), as every window does it.
namespace ferrowind::bench {

inline constexpr int kEuro = 978;
inline constexpr int kDollar = 840;
inline constexpr int kYear = 2026;

/// Adds the rules for the weekends to a database that has none but the built-in rule.
void AddWeekendRules();

/// Creates the calendar and makes its Saturdays and Sundays holidays by the rules that `AddWeekendRules`
/// adds.
void CreateCalendarWithWeekends(int currency, int year);

/// Calls `CldGetMain`. Returns the number of cells that it gave.
[[nodiscard]] std::size_t ReadCalendar(int currency, int year);

/// Calls `CldAllInfo`.
void ReadAllInfo();

/// Calls `CldIUMain` to make a day an exception with a comment.
void MarkDay(int currency, int year, int day, const std::string& comment = "Stock-taking");
/// A change of a day of the calendar kEuro of kYear that no other `number` makes.
void MarkAnotherDay(int number);

/// Measures `ReadCalendar` of the euro's calendar, which exists, against `read_by_peer`, which returns the
/// number of cells as well and must find as many. `calls` is how many calls make up a run.
void CompareReading(const Benchmark& benchmark, const std::string& name, double limit, int calls,
                    const std::function<std::size_t()>& read_by_peer, std::size_t runs);

}  // namespace ferrowind::bench
