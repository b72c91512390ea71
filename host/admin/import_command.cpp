#include "host/admin/import_command.h"

#include <cstddef>
#include <ostream>
#include <utility>

#include "ferrowind/exchange/list_faults.h"
#include "ferrowind/planning/counted.h"
#include "ferrowind/planning/listed_year.h"
#include "ferrowind/planning/plan_words.h"
#include "ferrowind/planning/year_planner.h"
#include "ferrowind/platform/values/failure.h"

#include "host/admin/database_content.h"
#include "host/admin/plan_application.h"
#include "host/admin/plan_remarks.h"
#include "host/admin/text_escapes.h"
#include "host/delivery/delivered_tables.h"

namespace ferrowind::host {
namespace {

using almanac::ExceptionHandling;
using planning::Counted;

/// Works on the calling thread's database.
class Import {
 public:
  Import(const ImportCommand& command, const Confirmation& confirm, std::istream& in, std::ostream& out,
         std::ostream& errors)
      : command_(command),
        in_(in),
        out_(out),
        errors_(errors),
        exceptions_(command.keeps_exceptions ? ExceptionHandling::kKeep : ExceptionHandling::kOverwrite),
        application_(exceptions_, command.is_confirmed, "in the list", confirm, out, errors),
        planner_(DeliveredDateTables()) {}

  ExitStatus Run() {
    const planning::Currency& currency = planner_.Currencies().Named(command_.currency);
    const GivenList list = ReadListFrom(command_.source, currency.code, in_);
    WriteListRemarks(list, errors_);
    for (const exchange::YearList& year : list.sorted.years) Prepare(currency, list.name, year);
    TellNames();
    if (is_blocked_) {
      errors_ << "ferrowindctl: nothing was changed\n";
      return ExitStatus::kNotDone;
    }
    if (changing_.empty()) {
      out_ << Counted(list.sorted.years.size(), "calendar is", "calendars are") << " as in the list"
           << planning::ButFor(kept_) << ".\n";
      return ExitStatus::kDone;
    }
    return application_.ApplyIfWanted(changing_);
  }

 private:
  void Prepare(const planning::Currency& currency, const std::string& source,
               const exchange::YearList& list) {
    planning::ListedYear listed = PrepareYear(currency, source, list);
    const planning::YearPreparation& preparation = *listed.preparation;
    for (const std::string& remark : listed.remarks) errors_ << OneLine(source + ": " + remark) << ".\n";
    other_names_ += listed.other_names;
    kept_ += planning::KeptByHand(preparation.Compared(), exceptions_);
    if (preparation.Changes(exceptions_)) application_.Show(preparation);
    WriteRemarks(preparation, exceptions_, errors_);
    is_blocked_ |= !preparation.Compared().Obstacles(exceptions_).empty();
    if (preparation.Changes(exceptions_)) changing_.push_back(std::move(listed.preparation));
  }

  planning::ListedYear PrepareYear(const planning::Currency& currency, const std::string& source,
                                   const exchange::YearList& list) const {
    try {
      return planning::PrepareListed(planner_, currency, list, source, command_.takes_names);
    } catch (const exchange::ListError& error) {
      throw platform::Failure(error.Number(), source + ": " + error.Description());
    }
  }

  void TellNames() {
    if (other_names_ == 0) return;
    errors_ << Counted(other_names_, "closed day keeps its name", "closed days keep their names")
            << ", which the list calls otherwise; --names takes the list's.\n";
  }

  const ImportCommand& command_;
  std::istream& in_;
  std::ostream& out_;
  std::ostream& errors_;
  ExceptionHandling exceptions_;
  PlanApplication application_;
  planning::YearPlanner planner_;
  Preparations changing_;
  std::size_t other_names_ = 0;
  planning::DayTotals kept_;
  bool is_blocked_ = false;
};

}  // namespace

ExitStatus ImportCommand::Run(const platform::EngineRegistry& engines, const Confirmation& confirm,
                              std::istream& in, std::ostream& out, std::ostream& errors) const {
  (void)WantedYearsOf(source);
  ExitStatus status = ExitStatus::kNotDone;
  RunWithCalendars(engines, url, [&] { status = Import(*this, confirm, in, out, errors).Run(); });
  return status;
}

}  // namespace ferrowind::host
