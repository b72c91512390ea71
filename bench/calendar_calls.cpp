#include "bench/calendar_calls.h"

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

#include "ferrowind/data/exec_proc.h"
#include "ferrowind/data/source_values.h"
#include "ferrowind/platform/values/record_set.h"

namespace ferrowind::bench {
namespace {

std::shared_ptr<SourceValues> Call(const std::string& procedure, const SourceValues& parameters) {
  std::shared_ptr<SourceValues> results;
  if (ExecProc(procedure, &parameters, results) != 0) throw std::runtime_error(procedure + " failed");
  return results;
}

SourceValues CalendarParameters(int currency, int year) {
  SourceValues parameters;
  parameters.Add("ID1", currency);
  parameters.Add("Year1", year);
  return parameters;
}

}  // namespace

void AddWeekendRules() {
  constexpr std::int16_t kSunday = 1;
  constexpr std::int16_t kSaturday = 7;
  for (const auto& [name, weekday] : {std::pair("Saturday", kSaturday), std::pair("Sunday", kSunday)}) {
    SourceValues parameters;
    parameters.Add("Name1", std::string(name));
    parameters.Add("TID1", 2);
    parameters.Add("WD", weekday);
    Call("CldIUCelebrate", parameters);
  }
}

void CreateCalendarWithWeekends(int currency, int year) {
  Call("CldIUMain", CalendarParameters(currency, year));
  // The first rules after the built-in one.
  for (const int rule : {2, 3}) {
    SourceValues parameters = CalendarParameters(currency, year);
    parameters.Add("TID1", 2);
    parameters.Add("ID2", rule);
    Call("CldIUMain", parameters);
  }
}

std::size_t ReadCalendar(int currency, int year) {
  const auto results = Call("CldGetMain", CalendarParameters(currency, year));
  const auto days = results->Values("1");
  const auto* const record_set = days ? days->Value.If<platform::Value::Object>() : nullptr;
  if (record_set == nullptr || !*record_set) throw std::runtime_error("CldGetMain gave no record set");
  return (*record_set)->RowCount() * (*record_set)->FieldCount();
}

void ReadAllInfo() { KeepResult(static_cast<std::size_t>(Call("CldAllInfo", {})->Count())); }

void MarkDay(int currency, int year, int day, const std::string& comment) {
  SourceValues parameters = CalendarParameters(currency, year);
  parameters.Add("TID1", 1);
  parameters.Add("ID2", 1);
  parameters.Add("Day1", day);
  parameters.Add("Comment", comment);
  Call("CldIUMain", parameters);
}

void MarkAnotherDay(int number) {
  constexpr int kDays = 365;
  MarkDay(kEuro, kYear, 1 + number % kDays, "Stock-taking " + std::to_string(number));
}

void CompareReading(const Benchmark& benchmark, const std::string& name, double limit, int calls,
                    const std::function<std::size_t()>& read_by_peer, std::size_t runs) {
  const auto read_by_us = [] { return ReadCalendar(kEuro, kYear); };
  if (read_by_us() != read_by_peer()) throw std::logic_error("the two do not read the same cells");
  const auto repeated = [calls](const std::function<std::size_t()>& read) {
    return [calls, read] {
      for (int i = 0; i < calls; ++i) KeepResult(read());
    };
  };
  benchmark.Compare(name, limit, {repeated(read_by_us)}, {repeated(read_by_peer)}, runs);
}

}  // namespace ferrowind::bench
