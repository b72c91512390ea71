#pragma once

#include <functional>
#include <string>

namespace ferrowind::bench {

/// Runs `work` on the calling thread's database, which is the SQLite file of that path meanwhile.
void RunWithFile(const std::string& path, const std::function<void()>& work);

/// Stores the delivered books in the calling thread's database, which has none, and makes the calendars of
/// their 26 currencies in those years as planned.
void MakePlannedCalendars(int first_year, int last_year);

}  // namespace ferrowind::bench
