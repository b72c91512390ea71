#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/planning/plan_batch.h"
#include "ferrowind/platform/platform.h"

namespace ferrowind {

/// The table of the lines of plans, and the decisions about them that its boxes are.
class PlanTable {
 public:
  /// All must outlive this. `on_decision` is told when the operator has decided about lines, once for all
  /// that one action of his has changed.
  PlanTable(const platform::Platform& platform, platform::Table& table, planning::PlanBatch& batch,
            std::function<void()> on_decision);

  /// Shows the lines that `filter` lets through.
  void Show(const planning::PlanLineFilter& filter);
  [[nodiscard]] const planning::PlanLineFilter& Filter() const { return filter_; }
  /// Shows the same lines as they are by now.
  void ShowAnew();
  /// All that the current line says, in a sentence; empty without a line.
  [[nodiscard]] std::string CurrentSentence() const;

 private:
  [[nodiscard]] bool IsOfMany() const { return batch_.Calendars().size() > 1; }
  /// Whether the lines are of several calendars, so that each has to name its own.
  [[nodiscard]] bool NamesCalendars() const { return IsOfMany() && !filter_.calendar; }
  void SetColumns();
  [[nodiscard]] platform::TableRow RowOf(const planning::PlanLine& line) const;
  /// Of a rule; nothing stands for an ordinary working day.
  [[nodiscard]] std::string NameOf(const std::optional<std::string>& rule) const;
  /// The cells that say of which calendar and day the line is.
  void AddPlace(const planning::PlanLine& line, platform::CellTone tone, platform::TableRow& row) const;
  /// The cells that say what should be there, and what is done for that.
  void AddAction(const planning::PlanLine& line, platform::CellTone tone, platform::TableRow& row) const;
  void TakeDecisions();

  const platform::Platform& platform_;
  platform::Table& table_;
  planning::PlanBatch& batch_;
  std::function<void()> on_decision_;
  planning::PlanLineFilter filter_;
  /// Whether one of the columns names calendars; nothing before there are any.
  std::optional<bool> has_calendar_column_;
  /// As the table shows them, but in the order of the plans.
  std::vector<planning::PlanLine> lines_;
  platform::Subscription decided_;
};

}  // namespace ferrowind
