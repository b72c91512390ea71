#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "ferrowind/almanac/comparison.h"
#include "ferrowind/almanac/plan_source.h"
#include "ferrowind/planning/book_dates.h"
#include "ferrowind/planning/calendar_store.h"
#include "ferrowind/planning/day_totals.h"
#include "ferrowind/planning/year_planner.h"
#include "ferrowind/planning/year_preparation.h"

namespace ferrowind::planning {

/// Matches a calendar with what it should be, as `YearPlanner::Prepare` does by its rule book.
using Preparer = std::function<std::unique_ptr<const YearPreparation>(const YearPlanner& planner,
                                                                      const Currency& currency, int year)>;
[[nodiscard]] Preparer ByRuleBook();

using almanac::PlanSource;

/// A calendar beside its plan, and which of the days that differ are to become others.
///
/// Working days by exception stay as they are until somebody takes them, and so do closed days that the rule
/// book does not have and would open: they were made by a person against a plan. Days that the database would
/// refuse (`Comparison::ObstacleOf`) are never taken. All others are taken until somebody leaves them out.
class PlannedCalendar {
 public:
  /// Not planned yet.
  PlannedCalendar(const CalendarKey& key, std::string name)
      : PlannedCalendar(key, std::move(name), PlanSource::kRuleBook, ByRuleBook()) {}
  /// `prepare` matches it with what `source` says.
  PlannedCalendar(const CalendarKey& key, std::string name, PlanSource source, Preparer prepare)
      : key_(key), name_(std::move(name)), source_(source), prepare_(std::move(prepare)) {}

  [[nodiscard]] const CalendarKey& Key() const { return key_; }
  /// `CalendarName`; what it was made with until its currency is known.
  [[nodiscard]] const std::string& Name() const { return name_; }
  [[nodiscard]] PlanSource Source() const { return source_; }

  /// Reads and compares it by `planner`, which it keeps. Whatever makes that fail becomes `WhyNot`. When it
  /// was planned before, days that were left out stay so, and so does a calendar all of whose days were,
  /// unless that is what a plan that was applied has left; a day that was taken against the rule above is
  /// only while it is and should be the same as then.
  void Plan(const std::shared_ptr<const YearPlanner>& planner);
  /// It cannot be planned, for that reason.
  void Fail(const std::string& why_not);

  /// Null while it is not planned; valid until it is planned anew.
  [[nodiscard]] const YearPreparation* Preparation() const { return preparation_.get(); }
  /// Why it cannot be planned, for operators; empty when it can.
  [[nodiscard]] const std::string& WhyNot() const { return why_not_; }

  /// Whether the operator decides about the day: it differs and the database would not refuse it.
  [[nodiscard]] bool IsOpenToChoice(const almanac::ComparedDay& day) const;
  [[nodiscard]] bool Takes(const almanac::ComparedDay& day) const { return day.Changes(choice_); }
  /// Does nothing with a day that is not open to choice. Precondition: it is planned; a day of its year.
  void Take(int day_of_year, bool is_taken);
  /// Leaves all days out, or takes those that are taken when nobody has decided anything.
  void TakeAll(bool is_taken);

  /// Of a calendar that is made as a list: the days that would be closed now and that the rule book of its
  /// currency leaves open, so that its plans would open them again. Empty when it has no book that tells of
  /// the year.
  [[nodiscard]] std::vector<DatedHoliday> DaysForBook() const;
  /// Whether the rule book gets those days; it does, if there are any, until somebody says otherwise.
  [[nodiscard]] bool TakesBook() const { return takes_book_ && !DaysForBook().empty(); }
  void TakeBook(bool is_taken) { takes_book_ = is_taken; }

  [[nodiscard]] DayTotals Totals() const;
  /// Whether `Apply` would change anything. A calendar that does not exist is not made without any day.
  [[nodiscard]] bool HasWork() const;
  /// As `YearPreparation::Apply`. Precondition: `HasWork`.
  void Apply();

 private:
  /// What somebody has decided about a day, and what was planned for it then.
  struct Decision {
    bool is_taken = false;
    almanac::PlanAction action = almanac::PlanAction::kKeep;
    std::optional<std::string> now;
    std::optional<std::string> should;
    /// Of the day as it is now.
    std::string comment;

    bool operator==(const Decision&) const = default;
  };

  [[nodiscard]] Decision DecisionOf(const almanac::ComparedDay& day, bool is_taken) const;
  [[nodiscard]] bool IsLeftOut() const;
  void ChooseAnew();

  CalendarKey key_;
  std::string name_;
  PlanSource source_;
  Preparer prepare_;
  std::string why_not_;
  /// Outlives the preparation, which points into it.
  std::shared_ptr<const YearPlanner> planner_;
  std::unique_ptr<const YearPreparation> preparation_;
  almanac::DayChoice choice_ = almanac::ExceptionHandling::kKeep;
  /// Whether the days that differ are those that an applied plan has left.
  bool is_rest_ = false;
  /// Whether all days were left out when it could be planned last.
  bool was_left_out_ = false;
  /// Of a calendar that is made as a list, what its rule book says.
  std::optional<almanac::YearPlan> book_plan_;
  bool takes_book_ = true;
  /// By the day of the year.
  std::map<int, Decision> decisions_;
};

}  // namespace ferrowind::planning
