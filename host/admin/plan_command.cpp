#include "host/admin/plan_command.h"

#include <cstddef>
#include <functional>
#include <ostream>

#include "ferrowind/planning/plan_words.h"
#include "ferrowind/planning/year_planner.h"

#include "host/admin/comparison_rows.h"
#include "host/admin/database_content.h"
#include "host/admin/plan_arguments.h"
#include "host/admin/plan_remarks.h"
#include "host/admin/text_escapes.h"
#include "host/delivery/delivered_tables.h"

namespace ferrowind::host {
namespace {

using almanac::ComparedDay;
using almanac::ExceptionHandling;
using DayChoice = std::function<bool(const ComparedDay& day)>;

bool IsClosed(const almanac::YearPlan& plan, const ComparedDay& day) {
  return (day.now != nullptr && day.now->IsClosed()) ||
         (day.should != nullptr && plan.KindOf(*day.should) != almanac::RuleKind::kWorkingDay);
}

/// What the plan has to say for people: the weekends of a new calendar are only counted.
void ShowTable(const planning::YearPreparation& preparation, const DayChoice& is_shown, bool shows_all,
               std::ostream& out) {
  const almanac::Comparison& comparison = preparation.Compared();
  const bool counts_weekends = !preparation.CalendarExists() && !shows_all;
  std::size_t weekends = 0;
  const auto rows = ComparisonRows(comparison, OutputFormat::kTable, [&](const ComparedDay& day) {
    const bool is_counted = counts_weekends && planning::IsNewWeekend(comparison.Plan(), day);
    if (is_counted) ++weekends;
    return !is_counted && is_shown(day);
  });
  WriteWithWeekends(*rows, weekends, out);
}

}  // namespace

ExitStatus PlanCommand::Run(const platform::EngineRegistry& engines, std::ostream& out,
                            std::ostream& errors) const {
  const int planned = ReadYear(year);
  const ExceptionHandling exceptions =
      keeps_exceptions ? ExceptionHandling::kKeep : ExceptionHandling::kOverwrite;
  ExitStatus status = ExitStatus::kDone;
  RunWithCalendars(engines, url, [&] {
    const planning::YearPlanner planner(DeliveredDateTables());
    const auto preparation = planner.Prepare(planner.Currencies().Named(currency), planned);
    const almanac::Comparison& comparison = preparation->Compared();
    const DayChoice is_shown = [&](const ComparedDay& day) {
      return day.Changes(exceptions) || (shows_all && IsClosed(comparison.Plan(), day));
    };
    const bool differs = preparation->Changes(exceptions);
    if (format != OutputFormat::kTable) {
      WriteList(*ComparisonRows(comparison, format, is_shown), format, out);
    } else if (differs || shows_all) {
      ShowTable(*preparation, is_shown, shows_all, out);
    } else {
      out << OneLine(preparation->Name()) << " is as planned"
          << planning::ButFor(planning::KeptByHand(comparison, exceptions)) << ".\n";
    }
    if (!preparation->CalendarExists()) {
      errors << OneLine(preparation->Name()) << " does not exist yet, and counts as empty.\n";
    }
    WriteRemarks(*preparation, exceptions, errors);
    if (differs) status = ExitStatus::kNotDone;
  });
  return status;
}

}  // namespace ferrowind::host
