#pragma once

#include <memory>
#include <string>
#include <vector>

#include "ferrowind/planning/assignment_preview.h"
#include "ferrowind/platform/events/subscription.h"
#include "ferrowind/platform/platform.h"

namespace ferrowind {

/// The dialog that shows what assigning rules to a calendar would do, rule by rule, and asks whether to do
/// it.
///
/// A fresh one for each use. It unloads itself; its answer stays readable afterwards.
class fmAssignPreview {
 public:
  /// `platform` must outlive the dialog; `calendar` is what the operator calls it ("EUR 2028").
  fmAssignPreview(const platform::Platform& platform, const std::string& calendar,
                  std::vector<planning::AssignmentLine> lines);
  fmAssignPreview(const fmAssignPreview&) = delete;
  fmAssignPreview& operator=(const fmAssignPreview&) = delete;

  /// Returns once it is closed.
  void ShowModal();
  /// Whether the operator pressed "Assign".
  [[nodiscard]] bool IsConfirmed() const { return is_confirmed_; }

 private:
  void Fill(const std::string& calendar);
  void TellOfCurrentLine();
  void Close(bool is_confirmed);

  const platform::Platform& platform_;
  std::vector<planning::AssignmentLine> lines_;
  std::shared_ptr<platform::Form> form_;
  platform::Table& table_;
  platform::TextView& details_;
  bool is_confirmed_ = false;
  std::vector<platform::Subscription> subscriptions_;
};

}  // namespace ferrowind
