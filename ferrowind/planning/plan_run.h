#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "ferrowind/data/action_scope.h"
#include "ferrowind/planning/plan_batch.h"

namespace ferrowind::planning {

/// Applies the plans of a batch, or undoes what was applied, one calendar a step, so that somebody may stop
/// between two of them. Several are told to the host as one action, which lasts as long as this object.
class PlanRun {
 public:
  enum class Kind : std::uint8_t { kApply, kUndo };

  /// `batch` must outlive this object, and nobody else may change it meanwhile.
  PlanRun(PlanBatch& batch, Kind kind);

  /// Of how many calendars the steps are, unless one fails.
  [[nodiscard]] std::size_t All() const { return outcomes_.size() + left_.size(); }
  [[nodiscard]] std::size_t Done() const { return outcomes_.size(); }
  /// Of the steps that are done.
  [[nodiscard]] const std::vector<PlanOutcome>& Outcomes() const { return outcomes_; }
  /// The position in the batch of the calendar that the next step is about; nothing after the last step, and
  /// after one that failed.
  [[nodiscard]] std::optional<std::size_t> Next() const;
  /// Precondition: there is a next one.
  void Step();
  /// Plans the calendars that were tried anew, and tells of each of them and of those that a failure has
  /// kept from being tried. To be called once, at any time.
  [[nodiscard]] std::vector<PlanOutcome> Finish();

 private:
  PlanBatch& batch_;
  Kind kind_;
  /// Positions of calendars, the next one last.
  std::vector<std::size_t> left_;
  std::vector<PlanOutcome> outcomes_;
  bool has_failed_ = false;
  /// What could be undone before; a run that applies nothing leaves it so.
  std::vector<PlanBatch::Applied> applied_before_;
  std::unique_ptr<ActionScope> together_;
};

}  // namespace ferrowind::planning
