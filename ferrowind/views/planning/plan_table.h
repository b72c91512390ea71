#pragma once

#include <functional>
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
  [[nodiscard]] platform::TableRow RowOf(const planning::PlanLine& line) const;
  void TakeDecisions();

  const platform::Platform& platform_;
  platform::Table& table_;
  planning::PlanBatch& batch_;
  std::function<void()> on_decision_;
  planning::PlanLineFilter filter_;
  /// As the table shows them, but in the order of the plans.
  std::vector<planning::PlanLine> lines_;
  platform::Subscription decided_;
};

}  // namespace ferrowind
