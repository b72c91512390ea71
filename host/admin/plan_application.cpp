#include "host/admin/plan_application.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <ostream>
#include <string>

#include "ferrowind/planning/counted.h"
#include "ferrowind/planning/database_call.h"
#include "ferrowind/planning/plan_words.h"
#include "ferrowind/platform/values/failure.h"

#include "host/admin/comparison_rows.h"
#include "host/admin/interruption.h"
#include "host/admin/outcome_writer.h"
#include "host/admin/text_escapes.h"

namespace ferrowind::host {
namespace {

using almanac::ComparedDay;
using almanac::ExceptionHandling;
using planning::Counted;
using planning::CountedExceptions;
using planning::IsNewWeekend;
using planning::YearPreparation;

template <typename IsCounted>
std::size_t CountOf(const Preparations& changing, IsCounted is_counted) {
  std::size_t count = 0;
  for (const auto& preparation : changing) {
    const auto& days = preparation->Compared().Days();
    count += static_cast<std::size_t>(std::count_if(days.begin(), days.end(), is_counted));
  }
  return count;
}

bool LosesReason(const ComparedDay& day, ExceptionHandling exceptions) {
  return day.action == almanac::PlanAction::kException && day.Changes(exceptions) &&
         !day.now->comment.empty();
}

}  // namespace

void PlanApplication::Show(const YearPreparation& preparation) const {
  const almanac::Comparison& comparison = preparation.Compared();
  std::size_t changes = 0;
  std::size_t weekends = 0;
  for (const ComparedDay& day : comparison.Days()) {
    if (!day.Changes(exceptions_)) continue;
    ++changes;
    if (IsNewWeekend(comparison.Plan(), day)) ++weekends;
  }
  out_ << OneLine(preparation.Name()) << (preparation.CalendarExists() ? ", " : ", a new calendar, ")
       << Counted(changes, "day", "days") << ":\n";
  const auto rows = ComparisonRows(comparison, OutputFormat::kTable, [&](const ComparedDay& day) {
    return day.Changes(exceptions_) && !IsNewWeekend(comparison.Plan(), day);
  });
  WriteWithWeekends(*rows, weekends, out_);
  out_ << '\n';
}

ExitStatus PlanApplication::ApplyIfWanted(const Preparations& changing) {
  if (const std::size_t lost =
          CountOf(changing, [&](const ComparedDay& day) { return LosesReason(day, exceptions_); });
      lost != 0) {
    out_ << CountedExceptions(lost) << (lost == 1 ? " that has" : " that have")
         << " a reason will be closed; --keep-exceptions leaves them open.\n";
  }
  if (const std::size_t opened = CountOf(
          changing, [&](const ComparedDay& day) { return day.IsOutsideBook() && day.Changes(exceptions_); });
      opened != 0) {
    out_ << Counted(opened, "closed day", "closed days")
         << " that the rule book does not have will be opened; --keep-exceptions leaves "
         << (opened == 1 ? "it" : "them") << " closed.\n";
  }
  if (!IsWanted(changing.size())) return ExitStatus::kNotDone;
  return ApplyAll(changing);
}

bool PlanApplication::IsWanted(std::size_t calendars) {
  if (is_confirmed_) return true;
  out_.flush();
  const std::optional<bool> answer = confirm_("Change " + Counted(calendars, "calendar", "calendars") + "?");
  if (!answer) {
    errors_ << "ferrowindctl: nothing was changed, as there is no terminal to ask on; --yes changes "
               "without asking\n";
  } else if (!*answer) {
    errors_ << "ferrowindctl: nothing was changed\n";
  }
  return answer.value_or(false);
}

ExitStatus PlanApplication::ApplyAll(const Preparations& changing) {
  const Interruption interruption;
  std::size_t made = 0;
  ExitStatus status = ExitStatus::kDone;
  for (const auto& preparation : changing) {
    if (Interruption::WasAsked()) {
      errors_ << "ferrowindctl: Stopped; " << made << " of "
              << Counted(changing.size(), "calendar is", "calendars are") << " made.\n";
      return ExitStatus::kNotDone;
    }
    if (Apply(*preparation)) {
      ++made;
    } else {
      status = ExitStatus::kNotDone;
    }
  }
  return status;
}

bool PlanApplication::Apply(const YearPreparation& preparation) {
  try {
    preparation.Apply(exceptions_);
  } catch (const planning::Refusal& refusal) {
    if (refusal.ReturnValue() != planning::return_value::kContentIsAnother) throw;
    errors_ << "ferrowindctl: " << OneLine(preparation.Name())
            << " was changed meanwhile; nothing was changed in it, run it again" << std::endl;
    return false;
  }
  const planning::DayTotals kept = planning::KeptByHand(preparation.Compared(), exceptions_);
  out_ << OneLine(preparation.Name());
  if (preparation.CalendarExists()) {
    out_ << " is as " << as_what_ << " now" << planning::ButFor(kept);
  } else {
    out_ << " is made";
  }
  TellEntry(preparation);
  return true;
}

void PlanApplication::TellEntry(const YearPreparation& preparation) {
  try {
    if (const auto entry = preparation.NewestEntry()) out_ << "; \"undo\" takes back the entry " << *entry;
    out_ << '.' << std::endl;
  } catch (const platform::Failure& failure) {
    out_ << '.' << std::endl;
    errors_ << "ferrowindctl: what \"undo\" takes back is not known, but it is done: "
            << OneLine(failure.Description()) << std::endl;
  }
}

}  // namespace ferrowind::host
