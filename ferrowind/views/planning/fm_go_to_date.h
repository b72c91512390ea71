#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/platform/platform.h"
#include "ferrowind/platform/toolkit/label.h"
#include "ferrowind/platform/toolkit/text_box.h"
#include "ferrowind/platform/values/date.h"

namespace ferrowind {

/// The dialog that asks for a date, typed as the operator's language writes dates, and shows what it means
/// while it is typed. A fresh one for each use.
class fmGoToDate {
 public:
  /// Why a date cannot be chosen, as a sentence; empty when it can.
  using Objection = std::function<std::string(const platform::Date& date)>;

  /// `platform` must outlive the dialog. A date without a year is in that of `start`, which the field holds
  /// at first. `objection` is asked when the operator chooses.
  fmGoToDate(const platform::Platform& platform, const platform::Date& start, Objection objection);
  fmGoToDate(const fmGoToDate&) = delete;
  fmGoToDate& operator=(const fmGoToDate&) = delete;

  /// Returns once the dialog is closed.
  void ShowModal();
  /// Nothing while none was chosen.
  [[nodiscard]] const std::optional<platform::Date>& Chosen() const { return chosen_; }

 private:
  [[nodiscard]] platform::DateReading Read() const;
  void ShowMeaning();
  void Go();
  void Refuse(const std::string& why);
  void Close();

  const platform::Platform& platform_;
  platform::Date start_;
  Objection objection_;
  std::shared_ptr<platform::Form> form_;
  platform::TextBox& text_;
  platform::Label& meaning_;
  std::optional<platform::Date> chosen_;
  std::vector<platform::Subscription> subscriptions_;
};

}  // namespace ferrowind
