#include "host/admin/apply_command.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "ferrowind/planning/counted.h"
#include "ferrowind/planning/plan_words.h"
#include "ferrowind/planning/year_planner.h"
#include "ferrowind/platform/values/failure.h"

#include "host/admin/database_content.h"
#include "host/admin/plan_application.h"
#include "host/admin/plan_arguments.h"
#include "host/admin/plan_remarks.h"
#include "host/admin/text_escapes.h"
#include "host/delivery/delivered_tables.h"

namespace ferrowind::host {
namespace {

using almanac::ExceptionHandling;
using planning::ButFor;
using planning::Counted;
using planning::Currency;
using planning::KeptByHand;

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
        kept_ += KeptByHand(preparation->Compared(), exceptions_);
        if (preparation->Changes(exceptions_)) application_.Show(*preparation);
        WriteRemarks(*preparation, exceptions_, errors_);
        is_blocked_ |= !preparation->Compared().Obstacles(exceptions_).empty();
        if (preparation->Changes(exceptions_)) changing.push_back(std::move(preparation));
      }
    }
    TellYearsBeforeBooks();
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
  /// The currencies whose books do not tell of all years: by these years, and the first of which they tell.
  std::map<std::pair<std::string, int>, std::vector<std::string>> before_books_;
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
