#include "host/admin/reconcile_command.h"

#include <optional>
#include <ostream>
#include <utility>
#include <vector>

#include "ferrowind/almanac/date_words.h"
#include "ferrowind/exchange/list_difference.h"
#include "ferrowind/exchange/list_faults.h"
#include "ferrowind/planning/calendar_store.h"
#include "ferrowind/planning/counted.h"
#include "ferrowind/planning/currency_list.h"
#include "ferrowind/planning/database_call.h"
#include "ferrowind/planning/plan_words.h"
#include "ferrowind/platform/values/failure.h"
#include "ferrowind/platform/values/record_set.h"

#include "host/admin/database_content.h"
#include "host/admin/text_escapes.h"

namespace ferrowind::host {
namespace {

using exchange::ListDifference;
using platform::Value;

std::vector<Value> RowOf(const ListDifference& difference, OutputFormat format) {
  const bool is_table = format == OutputFormat::kTable;
  const auto side = [&](const std::optional<std::string>& name, const char* open, const char* closed) {
    if (!name) return is_table ? Value(open) : Value();
    return Value(name->empty() && is_table ? std::string(closed) : *name);
  };
  const bool is_missing = difference.is_missing;
  return {difference.date, std::string(almanac::WeekdayName(difference.date.Weekday())),
          side(difference.calendar, planning::kOrdinaryDay, ""),
          side(difference.listed, "not listed", is_missing ? "closed" : "working day"),
          std::string(is_missing ? "open in the calendar" : "closed in the calendar only")};
}

void TellHalfDays(const GivenList& list, const exchange::YearList& year, std::ostream& errors) {
  for (const exchange::ListedDay& day : year.days) {
    if (day.kind != exchange::ListedKind::kHalfDay) continue;
    errors << OneLine(list.name + ": Line " + std::to_string(day.line) + ": " + day.date.ToIso() +
                      (day.name.empty() ? "" : " " + exchange::Quoted(day.name)))
           << " is a half day and not compared.\n";
  }
}

}  // namespace

ExitStatus ReconcileCommand::Run(const platform::EngineRegistry& engines, std::istream& in, std::ostream& out,
                                 std::ostream& errors) const {
  (void)WantedYearsOf(source);
  ExitStatus status = ExitStatus::kDone;
  RunWithCalendars(engines, url, [&] {
    const auto shared = planning::ShareConnections();
    const auto currencies = planning::CurrencyList::Load();
    const planning::Currency& owner = currencies.Named(currency);
    const GivenList list = ReadListFrom(source, owner.code, in);
    WriteListRemarks(list, errors);
    const almanac::RuleDirectory rules(planning::LoadRules().rules);
    std::vector<std::vector<Value>> rows;
    for (const exchange::YearList& year : list.sorted.years) {
      const auto calendar = planning::LoadDays(owner, year.year);
      if (!calendar) {
        throw platform::Failure(platform::failure_number::kInvalidArgument,
                                "There is no calendar " + owner.code + " " + std::to_string(year.year) +
                                    ", so nothing can be compared");
      }
      TellHalfDays(list, year, errors);
      for (const ListDifference& difference : DifferencesOf(year, *calendar, rules)) {
        rows.push_back(RowOf(difference, output));
      }
    }
    if (!rows.empty()) status = ExitStatus::kNotDone;
    if (rows.empty() && output == OutputFormat::kTable) {
      out << OneLine(owner.code) << " is as " << OneLine(list.name)
          << " says: " << planning::Counted(list.sorted.years.size(), "calendar", "calendars")
          << ", no difference.\n";
      return;
    }
    const platform::RecordSet differences({"date", "weekday", "calendar", "list", "difference"},
                                          std::move(rows));
    WriteList(differences, output, out);
  });
  return status;
}

}  // namespace ferrowind::host
