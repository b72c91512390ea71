#include "host/admin/plan_command.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "ferrowind/planning/plan_words.h"
#include "ferrowind/planning/year_planner.h"
#include "ferrowind/platform/values/failure.h"

#include "host/admin/calendar_choice.h"
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

/// Prints the plans of the calendars that are added.
class Plans {
 public:
  Plans(const PlanCommand& command, bool are_several, std::ostream& out, std::ostream& errors)
      : command_(command),
        are_several_(are_several),
        exceptions_(command.keeps_exceptions ? ExceptionHandling::kKeep : ExceptionHandling::kOverwrite),
        out_(out),
        errors_(errors) {}

  void Add(const planning::YearPreparation& preparation) {
    const almanac::Comparison& comparison = preparation.Compared();
    const DayChoice is_shown = [&](const ComparedDay& day) {
      return day.Changes(exceptions_) || (command_.shows_all && IsClosed(comparison.Plan(), day));
    };
    if (command_.format == OutputFormat::kTable) {
      ShowForPeople(preparation, is_shown);
    } else {
      rows_.emplace_back(preparation.Owner().code, ComparisonRows(comparison, command_.format, is_shown));
    }
    if (!preparation.CalendarExists()) {
      errors_ << OneLine(preparation.Name()) << " does not exist yet, and counts as empty.\n";
    }
    WriteRemarks(preparation, exceptions_, errors_);
    any_differs_ |= preparation.Changes(exceptions_);
  }

  /// What is for programs is one list, and so comes last. Something must have been added.
  void End() const {
    if (command_.format == OutputFormat::kTable) return;
    WriteList(are_several_ ? *JoinedRows(rows_) : *rows_.front().second, command_.format, out_);
  }

  [[nodiscard]] bool AnyDiffers() const { return any_differs_; }

 private:
  void ShowForPeople(const planning::YearPreparation& preparation, const DayChoice& is_shown) const {
    if (preparation.Changes(exceptions_) || command_.shows_all) {
      if (are_several_) out_ << OneLine(preparation.Name()) << ":\n";
      ShowTable(preparation, is_shown, command_.shows_all, out_);
      if (are_several_) out_ << '\n';
      return;
    }
    out_ << OneLine(preparation.Name()) << " is as planned"
         << planning::ButFor(planning::KeptByHand(preparation.Compared(), exceptions_)) << ".\n";
  }

  const PlanCommand& command_;
  bool are_several_;
  ExceptionHandling exceptions_;
  std::ostream& out_;
  std::ostream& errors_;
  std::vector<std::pair<std::string, std::shared_ptr<platform::RecordSet>>> rows_;
  bool any_differs_ = false;
};

}  // namespace

ExitStatus PlanCommand::Run(const platform::EngineRegistry& engines, std::ostream& out,
                            std::ostream& errors) const {
  const YearRange wanted = ReadYears(years);
  const bool are_several = planning::MeansAllCurrencies(currency) || wanted.first != wanted.last;
  ExitStatus status = ExitStatus::kDone;
  RunWithCalendars(engines, url, [&] {
    const planning::YearPlanner planner(DeliveredDateTables());
    const auto chosen = ChooseCalendars(planner, currency, wanted, errors);
    if (chosen.empty()) {
      throw platform::Failure(platform::failure_number::kInvalidArgument,
                              "Nothing is planned for these years");
    }
    Plans plans(*this, are_several, out, errors);
    for (const ChosenCalendar& one : chosen) plans.Add(*planner.Prepare(*one.currency, one.year));
    plans.End();
    if (plans.AnyDiffers()) status = ExitStatus::kNotDone;
  });
  return status;
}

}  // namespace ferrowind::host
