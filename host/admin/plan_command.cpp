#include "host/admin/plan_command.h"

#include <ostream>

#include "ferrowind/planning/year_planner.h"

#include "host/admin/comparison_rows.h"
#include "host/admin/plan_arguments.h"
#include "host/admin/plan_remarks.h"
#include "host/delivery/delivered_tables.h"
#include "host/session/procedure_session.h"

namespace ferrowind::host {
namespace {

using almanac::ComparedDay;

bool IsClosed(const almanac::YearPlan& plan, const ComparedDay& day) {
  return (day.now != nullptr && day.now->IsClosed()) ||
         (day.should != nullptr && plan.KindOf(*day.should) != almanac::RuleKind::kWorkingDay);
}

bool Differs(const ComparedDay& day) { return day.action != almanac::PlanAction::kKeep; }

}  // namespace

ExitStatus PlanCommand::Run(const platform::EngineRegistry& engines, std::ostream& out,
                            std::ostream& errors) const {
  const int planned = ReadYear(year);
  ExitStatus status = ExitStatus::kDone;
  RunWithDatabase(engines, url, [&] {
    const planning::YearPlanner planner(DeliveredDateTables());
    const auto preparation = planner.Prepare(planner.Currencies().Named(currency), planned);
    const almanac::Comparison& comparison = preparation->Compared();
    const auto rows = ComparisonRows(comparison, format, [&](const ComparedDay& day) {
      return Differs(day) || (shows_all && IsClosed(comparison.Plan(), day));
    });
    const bool differs = comparison.Differs() || !preparation->CalendarExists();
    if (differs || shows_all || format != OutputFormat::kTable) {
      WriteList(*rows, format, out);
    } else {
      out << preparation->Name() << " is as planned.\n";
    }
    if (!preparation->CalendarExists()) {
      errors << preparation->Name() << " does not exist yet, and counts as empty.\n";
    }
    WriteRemarks(*preparation, almanac::ExceptionHandling::kOverwrite, errors);
    if (differs) status = ExitStatus::kNotDone;
  });
  return status;
}

}  // namespace ferrowind::host
