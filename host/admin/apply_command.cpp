#include "host/admin/apply_command.h"

#include <algorithm>
#include <cstddef>
#include <iostream>
#include <memory>
#include <utility>
#include <vector>

#include <unistd.h>

#include "ferrowind/planning/year_planner.h"
#include "ferrowind/platform/values/case_fold.h"
#include "ferrowind/platform/values/failure.h"

#include "host/admin/comparison_rows.h"
#include "host/admin/counted.h"
#include "host/admin/outcome_writer.h"
#include "host/admin/plan_arguments.h"
#include "host/admin/plan_remarks.h"
#include "host/delivery/delivered_tables.h"
#include "host/session/procedure_session.h"

namespace ferrowind::host {
namespace {

using almanac::ComparedDay;
using almanac::ExceptionHandling;
using planning::Currency;
using planning::YearPreparation;
using Preparations = std::vector<std::unique_ptr<YearPreparation>>;

/// Everybody knows the weekends of a new calendar.
bool IsNewWeekend(const almanac::YearPlan& plan, const ComparedDay& day) {
  return day.now == nullptr && plan.KindOf(*day.should) == almanac::RuleKind::kWeekday;
}

void Show(const YearPreparation& preparation, ExceptionHandling exceptions, std::ostream& out) {
  const almanac::Comparison& comparison = preparation.Compared();
  std::size_t changes = 0;
  std::size_t weekends = 0;
  for (const ComparedDay& day : comparison.Days()) {
    if (!day.Changes(exceptions)) continue;
    ++changes;
    if (IsNewWeekend(comparison.Plan(), day)) ++weekends;
  }
  out << preparation.Name() << (preparation.CalendarExists() ? ", " : ", a new calendar, ")
      << Counted(changes, "day", "days") << ":\n";
  if (changes > weekends) {
    const auto rows = ComparisonRows(comparison, OutputFormat::kTable, [&](const ComparedDay& day) {
      return day.Changes(exceptions) && !IsNewWeekend(comparison.Plan(), day);
    });
    WriteList(*rows, OutputFormat::kTable, out);
  }
  if (weekends != 0)
    out << (changes > weekends ? "and " : "") << Counted(weekends, "day", "days") << " of weekends\n";
  out << '\n';
}

/// Works on the calling thread's database.
class Application {
 public:
  Application(const ApplyCommand& command, const Confirmation& confirm, std::ostream& out,
              std::ostream& errors)
      : command_(command),
        confirm_(confirm),
        out_(out),
        errors_(errors),
        exceptions_(command.keeps_exceptions ? ExceptionHandling::kKeep : ExceptionHandling::kOverwrite),
        planner_(DeliveredDateTables()) {}

  ExitStatus Run() {
    const Preparations changing = Prepare(ReadYears(command_.years));
    if (is_blocked_) {
      errors_ << "ferrowindctl: nothing was changed\n";
      return ExitStatus::kNotDone;
    }
    if (changing.empty()) {
      out_ << Counted(looked_at_, "calendar is", "calendars are") << " as planned.\n";
      return ExitStatus::kDone;
    }
    if (!IsWanted(changing.size())) return ExitStatus::kNotDone;
    for (const auto& preparation : changing) Apply(*preparation);
    return ExitStatus::kDone;
  }

 private:
  [[nodiscard]] std::vector<const Currency*> Chosen() const {
    if (platform::CompareIgnoringCase(command_.currency, ApplyCommand::kAllCurrencies) != 0) {
      return {&planner_.Currencies().Named(command_.currency)};
    }
    std::vector<const Currency*> all = planner_.WithBooks();
    if (all.empty()) {
      throw platform::Failure(platform::failure_number::kInvalidArgument, "The database has no books");
    }
    return all;
  }

  /// Those that would change, all of which are shown.
  Preparations Prepare(const YearRange& years) {
    Preparations changing;
    const std::vector<const Currency*> currencies = Chosen();
    for (const Currency* const currency : currencies) {
      for (int year = years.first; year <= years.last; ++year) {
        if (currencies.size() > 1 && !currency->IsLiveIn(year)) continue;
        auto preparation = planner_.Prepare(*currency, year);
        ++looked_at_;
        if (preparation->Changes(exceptions_)) Show(*preparation, exceptions_, out_);
        WriteRemarks(*preparation, exceptions_, errors_);
        is_blocked_ |= !preparation->Compared().Obstacles(exceptions_).empty();
        if (preparation->Changes(exceptions_)) changing.push_back(std::move(preparation));
      }
    }
    return changing;
  }

  [[nodiscard]] bool IsWanted(std::size_t calendars) {
    if (command_.is_confirmed) return true;
    out_.flush();
    const std::optional<bool> answer =
        confirm_("Change " + Counted(calendars, "calendar", "calendars") + "?");
    if (!answer) {
      errors_ << "ferrowindctl: nothing was changed, as there is no terminal to ask on; --yes changes "
                 "without asking\n";
    } else if (!*answer) {
      errors_ << "ferrowindctl: nothing was changed\n";
    }
    return answer.value_or(false);
  }

  void Apply(const YearPreparation& preparation) {
    preparation.Apply(exceptions_);
    out_ << preparation.Name() << (preparation.CalendarExists() ? " is as planned now" : " is made");
    if (const auto entry = preparation.NewestEntry()) out_ << "; \"undo\" takes back the entry " << *entry;
    out_ << ".\n";
  }

  const ApplyCommand& command_;
  const Confirmation& confirm_;
  std::ostream& out_;
  std::ostream& errors_;
  ExceptionHandling exceptions_;
  planning::YearPlanner planner_;
  std::size_t looked_at_ = 0;
  bool is_blocked_ = false;
};

}  // namespace

std::optional<bool> AskOnTerminal(const std::string& question) {
  if (isatty(STDIN_FILENO) == 0) return std::nullopt;
  std::cerr << question << " [y/N] " << std::flush;
  std::string answer;
  std::getline(std::cin, answer);
  return platform::CompareIgnoringCase(answer, "y") == 0 || platform::CompareIgnoringCase(answer, "yes") == 0;
}

ExitStatus ApplyCommand::Run(const platform::EngineRegistry& engines, const Confirmation& confirm,
                             std::ostream& out, std::ostream& errors) const {
  (void)ReadYears(years);
  ExitStatus status = ExitStatus::kNotDone;
  RunWithDatabase(engines, url, [&] { status = Application(*this, confirm, out, errors).Run(); });
  return status;
}

}  // namespace ferrowind::host
