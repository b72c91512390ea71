#include "host/admin/apply_command.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <iostream>
#include <map>
#include <memory>
#include <utility>
#include <vector>

#include <poll.h>
#include <unistd.h>

#include "ferrowind/planning/counted.h"
#include "ferrowind/planning/database_call.h"
#include "ferrowind/planning/plan_words.h"
#include "ferrowind/planning/year_planner.h"
#include "ferrowind/platform/values/case_fold.h"
#include "ferrowind/platform/values/failure.h"

#include "host/admin/comparison_rows.h"
#include "host/admin/database_content.h"
#include "host/admin/interruption.h"
#include "host/admin/outcome_writer.h"
#include "host/admin/plan_arguments.h"
#include "host/admin/plan_remarks.h"
#include "host/admin/text_escapes.h"
#include "host/delivery/delivered_tables.h"

namespace ferrowind::host {
namespace {

using almanac::ComparedDay;
using almanac::ExceptionHandling;
using planning::ButForExceptions;
using planning::Counted;
using planning::CountedExceptions;
using planning::Currency;
using planning::IsNewWeekend;
using planning::KeptExceptions;
using planning::YearPreparation;
using Preparations = std::vector<std::unique_ptr<YearPreparation>>;

bool LosesReason(const ComparedDay& day, ExceptionHandling exceptions) {
  return day.action == almanac::PlanAction::kException && day.Changes(exceptions) &&
         !day.now->comment.empty();
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
  out << OneLine(preparation.Name()) << (preparation.CalendarExists() ? ", " : ", a new calendar, ")
      << Counted(changes, "day", "days") << ":\n";
  const auto rows = ComparisonRows(comparison, OutputFormat::kTable, [&](const ComparedDay& day) {
    return day.Changes(exceptions) && !IsNewWeekend(comparison.Plan(), day);
  });
  WriteWithWeekends(*rows, weekends, out);
  out << '\n';
}

/// Returns when a line, or its end, has come from standard input. Throws `Interrupted`.
void AwaitInput() {
  // A signal may come to another thread, whose handler does not wake this one.
  constexpr int kMillisecondsBetweenLooks = 100;
  pollfd input{STDIN_FILENO, POLLIN, 0};
  for (;;) {
    if (Interruption::WasAsked()) std::cerr << '\n';
    Interruption::ThrowIfAsked();
    const int ready = poll(&input, 1, kMillisecondsBetweenLooks);
    if (ready > 0 || (ready < 0 && errno != EINTR)) return;
  }
}

/// "2028", or "2028..2030".
std::string TextOf(const YearRange& years) {
  const std::string first = std::to_string(years.first);
  return years.first == years.last ? first : first + ".." + std::to_string(years.last);
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
    if (looked_at_ == 0) {
      errors_ << "ferrowindctl: nothing was changed, as nothing is planned for these years\n";
      return ExitStatus::kNotDone;
    }
    if (changing.empty()) {
      out_ << Counted(looked_at_, "calendar is", "calendars are") << " as planned" << ButForExceptions(kept_)
           << ".\n";
      return ExitStatus::kDone;
    }
    if (const std::size_t lost = ReasonsLostBy(changing); lost != 0) {
      out_ << CountedExceptions(lost) << (lost == 1 ? " that has" : " that have")
           << " a reason will be closed; --keep-exceptions leaves them open.\n";
    }
    if (!IsWanted(changing.size())) return ExitStatus::kNotDone;
    return ApplyAll(changing);
  }

 private:
  [[nodiscard]] bool TakesAll() const { return planning::MeansAllCurrencies(command_.currency); }

  [[nodiscard]] std::vector<const Currency*> Chosen() const {
    if (!TakesAll()) return {&planner_.Currencies().Named(command_.currency)};
    std::vector<const Currency*> all = planner_.WithBooks();
    if (all.empty()) {
      throw platform::Failure(platform::failure_number::kInvalidArgument, "The database has no books");
    }
    return all;
  }

  /// Those of `years` in which the currency is money and its book holds; tells which are left out.
  [[nodiscard]] YearRange PlannedYears(const Currency& currency, const YearRange& years) {
    YearRange planned = years;
    while (planned.last >= planned.first && !currency.IsLiveIn(planned.last)) --planned.last;
    if (planned.last < years.last) {
      const YearRange after{std::max(years.first, planned.last + 1), years.last};
      errors_ << OneLine(currency.code) << ' ' << TextOf(after)
              << " is left out: " << planning::EndOfMoney(currency).InEnglish() << ".\n";
    }
    if (const auto first = planner_.FirstYearOf(currency)) {
      planned.first = std::clamp(*first, planned.first, planned.last + 1);
      if (planned.first > years.first) {
        before_books_[{TextOf({years.first, planned.first - 1}), *first}].push_back(currency.code);
      }
    }
    return planned;
  }

  void TellYearsBeforeBooks() {
    for (const auto& [years, codes] : before_books_) {
      for (const std::string& code : codes) errors_ << OneLine(code) << ' ';
      errors_ << years.first << " is left out: the " << (codes.size() == 1 ? "book holds" : "books hold")
              << " from " << years.second << " on.\n";
    }
  }

  /// Those that would change, all of which are shown.
  Preparations Prepare(const YearRange& years) {
    Preparations changing;
    for (const Currency* const currency : Chosen()) {
      const YearRange planned = TakesAll() ? PlannedYears(*currency, years) : years;
      for (int year = planned.first; year <= planned.last; ++year) {
        auto preparation = planner_.Prepare(*currency, year);
        ++looked_at_;
        kept_ += KeptExceptions(preparation->Compared(), exceptions_);
        if (preparation->Changes(exceptions_)) Show(*preparation, exceptions_, out_);
        WriteRemarks(*preparation, exceptions_, errors_);
        is_blocked_ |= !preparation->Compared().Obstacles(exceptions_).empty();
        if (preparation->Changes(exceptions_)) changing.push_back(std::move(preparation));
      }
    }
    TellYearsBeforeBooks();
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

  [[nodiscard]] std::size_t ReasonsLostBy(const Preparations& changing) const {
    std::size_t lost = 0;
    for (const auto& preparation : changing) {
      const auto& days = preparation->Compared().Days();
      lost += static_cast<std::size_t>(std::count_if(
          days.begin(), days.end(), [&](const ComparedDay& day) { return LosesReason(day, exceptions_); }));
    }
    return lost;
  }

  /// A signal stops it behind the call that is running.
  ExitStatus ApplyAll(const Preparations& changing) {
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

  /// Tells at once, as the next calendar may fail. False when somebody else has changed the calendar.
  [[nodiscard]] bool Apply(const YearPreparation& preparation) {
    try {
      preparation.Apply(exceptions_);
    } catch (const planning::Refusal& refusal) {
      if (refusal.ReturnValue() != planning::return_value::kContentIsAnother) throw;
      errors_ << "ferrowindctl: " << OneLine(preparation.Name())
              << " was changed meanwhile; nothing was changed in it, run it again" << std::endl;
      return false;
    }
    const std::size_t kept = KeptExceptions(preparation.Compared(), exceptions_);
    out_ << OneLine(preparation.Name());
    if (preparation.CalendarExists()) {
      out_ << " is as planned now" << ButForExceptions(kept);
    } else {
      out_ << " is made";
    }
    if (const auto entry = preparation.NewestEntry()) out_ << "; \"undo\" takes back the entry " << *entry;
    out_ << '.' << std::endl;
    return true;
  }

  const ApplyCommand& command_;
  const Confirmation& confirm_;
  std::ostream& out_;
  std::ostream& errors_;
  ExceptionHandling exceptions_;
  planning::YearPlanner planner_;
  std::size_t looked_at_ = 0;
  /// Working days by exception that stay where the plan has closed them.
  std::size_t kept_ = 0;
  /// The currencies whose books do not tell of all years: by these years, and the first of which they tell.
  std::map<std::pair<std::string, int>, std::vector<std::string>> before_books_;
  bool is_blocked_ = false;
};

}  // namespace

std::optional<bool> AskOnTerminal(const std::string& question) {
  if (isatty(STDIN_FILENO) == 0) return std::nullopt;
  RunInterruptibly(
      [&] {
        // Whoever has read the question may stop the program at once.
        std::cerr << question << " [y/N] " << std::flush;
        AwaitInput();
      },
      std::cerr);
  std::string answer;
  std::getline(std::cin, answer);
  return platform::CompareIgnoringCase(answer, "y") == 0 || platform::CompareIgnoringCase(answer, "yes") == 0;
}

ExitStatus ApplyCommand::Run(const platform::EngineRegistry& engines, const Confirmation& confirm,
                             std::ostream& out, std::ostream& errors) const {
  (void)ReadYears(years);
  ExitStatus status = ExitStatus::kNotDone;
  RunWithCalendars(engines, url, [&] { status = Application(*this, confirm, out, errors).Run(); });
  return status;
}

}  // namespace ferrowind::host
