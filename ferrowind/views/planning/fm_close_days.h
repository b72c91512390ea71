#pragma once

#include <memory>
#include <vector>

#include "ferrowind/planning/holiday_closing.h"
#include "ferrowind/platform/events/subscription.h"
#include "ferrowind/platform/platform.h"

namespace ferrowind {

/// The dialog that asks what days are closed as, and shows what that would do, line by line, while the
/// operator types and chooses.
///
/// A fresh one for each use. It unloads itself; its answer stays readable afterwards.
class fmCloseDays {
 public:
  /// `platform` must outlive the dialog, and so must `closing`, which holds what the operator decides.
  fmCloseDays(const platform::Platform& platform, planning::HolidayClosing& closing);
  fmCloseDays(const fmCloseDays&) = delete;
  fmCloseDays& operator=(const fmCloseDays&) = delete;

  /// Returns once it is closed.
  void ShowModal();
  /// Whether the operator pressed "Close days". The days can be closed then.
  [[nodiscard]] bool IsConfirmed() const { return is_confirmed_; }

 private:
  void FillKnownNames();
  void TakeName();
  void TakeKnownName();
  void TakeDecisions();
  void ShowAnew();
  [[nodiscard]] platform::TableRow RowOf(const planning::ClosingLine& line) const;
  [[nodiscard]] std::string MeaningOfName() const;
  void Confirm();
  void Close();

  const platform::Platform& platform_;
  planning::HolidayClosing& closing_;
  std::shared_ptr<platform::Form> form_;
  platform::TextBox& name_;
  platform::DropDownList& known_;
  platform::Label& meaning_;
  platform::Table& table_;
  platform::Label& summary_;
  platform::Button& close_days_;
  bool is_confirmed_ = false;
  std::vector<platform::Subscription> subscriptions_;
};

}  // namespace ferrowind
