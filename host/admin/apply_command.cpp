#include "host/admin/apply_command.h"

#include <cstddef>
#include <ostream>
#include <utility>

#include "ferrowind/planning/counted.h"
#include "ferrowind/planning/plan_words.h"
#include "ferrowind/planning/year_planner.h"

#include "host/admin/calendar_choice.h"
#include "host/admin/database_content.h"
#include "host/admin/plan_application.h"
#include "host/admin/plan_arguments.h"
#include "host/admin/plan_remarks.h"
#include "host/delivery/delivered_tables.h"

namespace ferrowind::host {
namespace {

using almanac::ExceptionHandling;
using planning::ButFor;
using planning::Counted;
using planning::KeptByHand;

/// Works on the calling thread's database.
class Application {
 public:
  Application(const ApplyCommand& command, const Confirmation& confirm, std::ostream& out,
              std::ostream& errors)
      : command_(command),
        out_(out),
        errors_(errors),
        exceptions_(command.keeps_exceptions ? ExceptionHandling::kKeep : ExceptionHandling::kOverwrite),
        application_(exceptions_, command.is_confirmed, "planned", confirm, out, errors),
        planner_(DeliveredDateTables()) {}

  ExitStatus Run() {
    const Preparations changing = Prepare(ReadYears(command_.years));
    if (is_blocked_) {
      errors_ << "ferrowindctl: nothing was changed\n";
      return ExitStatus::kNotDone;
    }
    if (looked_at_ == 0) {
      errors_ << "ferrowindctl: nothing was changed, as nothing is planned for these years\n";
      return ExitStatus::kNotDone;
    }
    if (changing.empty()) {
      out_ << Counted(looked_at_, "calendar is", "calendars are") << " as planned" << ButFor(kept_) << ".\n";
      return ExitStatus::kDone;
    }
    return application_.ApplyIfWanted(changing);
  }

 private:
  /// Those that would change, all of which are shown.
  Preparations Prepare(const YearRange& years) {
    Preparations changing;
    for (const ChosenCalendar& chosen : ChooseCalendars(planner_, command_.currency, years, errors_)) {
      auto preparation = planner_.Prepare(*chosen.currency, chosen.year);
      ++looked_at_;
      kept_ += KeptByHand(preparation->Compared(), exceptions_);
      if (preparation->Changes(exceptions_)) application_.Show(*preparation);
      WriteRemarks(*preparation, exceptions_, errors_);
      is_blocked_ |= !preparation->Compared().Obstacles(exceptions_).empty();
      if (preparation->Changes(exceptions_)) changing.push_back(std::move(preparation));
    }
    return changing;
  }

  const ApplyCommand& command_;
  std::ostream& out_;
  std::ostream& errors_;
  ExceptionHandling exceptions_;
  PlanApplication application_;
  planning::YearPlanner planner_;
  std::size_t looked_at_ = 0;
  /// Working days by exception that stay where the plan has closed them.
  planning::DayTotals kept_;
  bool is_blocked_ = false;
};

}  // namespace

ExitStatus ApplyCommand::Run(const platform::EngineRegistry& engines, const Confirmation& confirm,
                             std::ostream& out, std::ostream& errors) const {
  (void)ReadYears(years);
  ExitStatus status = ExitStatus::kNotDone;
  RunWithCalendars(engines, url, [&] { status = Application(*this, confirm, out, errors).Run(); });
  return status;
}

}  // namespace ferrowind::host
