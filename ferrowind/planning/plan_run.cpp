#include "ferrowind/planning/plan_run.h"

#include <utility>

#include "ferrowind/data/module_state.h"
#include "ferrowind/planning/in_words.h"

namespace ferrowind::planning {

PlanRun::PlanRun(PlanBatch& batch, Kind kind) : batch_(batch), kind_(kind) {
  if (kind_ == Kind::kApply) {
    for (std::size_t i = batch_.calendars_.size(); i-- > 0;) {
      if (batch_.calendars_[i].HasWork()) left_.push_back(i);
    }
    applied_before_ = std::exchange(batch_.applied_, {});
  } else {
    for (const PlanBatch::Applied& applied : batch_.applied_) left_.push_back(applied.calendar);
  }
  if (left_.size() < 2) return;
  // Told as one action, not each in the place of the one before.
  together_ = std::make_unique<ActionScope>(
      AttachedPlatform().action_observer,
      kind_ == Kind::kApply ? platform::ActionKind::kApplyPlan : platform::ActionKind::kUndo);
}

std::optional<std::size_t> PlanRun::Next() const {
  if (has_failed_ || left_.empty()) return std::nullopt;
  return left_.back();
}

void PlanRun::Step() {
  outcomes_.push_back(kind_ == Kind::kApply ? batch_.ApplyOne(left_.back())
                                            : batch_.UndoOne(batch_.applied_.back()));
  has_failed_ = outcomes_.back().kind == PlanOutcome::Kind::kFailed;
  left_.pop_back();
  // What could not be undone may be tried again.
  if (kind_ == Kind::kUndo && !has_failed_) batch_.applied_.pop_back();
}

std::vector<PlanOutcome> PlanRun::Finish() {
  if (kind_ == Kind::kApply && batch_.applied_.empty()) batch_.applied_ = std::move(applied_before_);
  std::vector<std::size_t> tried;
  for (const PlanOutcome& outcome : outcomes_) tried.push_back(outcome.calendar);
  batch_.PlanAnew(tried);
  if (kind_ == Kind::kApply && has_failed_) {
    for (auto position = left_.rbegin(); position != left_.rend(); ++position) {
      outcomes_.push_back({*position, PlanOutcome::Kind::kNotTried,
                           InWords("%1 was not tried.", {batch_.calendars_[*position].Name()})});
    }
  }
  return std::move(outcomes_);
}

}  // namespace ferrowind::planning
