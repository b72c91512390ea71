#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/platform/platform.h"
#include "ferrowind/platform/toolkit/label.h"
#include "ferrowind/platform/toolkit/text_box.h"

namespace ferrowind {

/// The dialog that asks of which moment a calendar is to be shown: a date as the operator's language writes
/// dates and a time of this computer's clock, with what they mean shown while they are typed. A fresh one for
/// each use. Moments are UTC, YYYY-MM-DDTHH:MM:SS.sssZ.
class fmAsOf {
 public:
  /// Why there is nothing to show of a moment, as a sentence; empty when there is.
  using Objection = std::function<std::string(const std::string& moment)>;

  /// `platform` must outlive the dialog. `calendar` is named in it ("EUR 2028"); the fields hold `start` at
  /// first. `objection` is asked when the operator chooses, of no moment that is to come.
  fmAsOf(const platform::Platform& platform, const std::string& calendar, std::string start,
         Objection objection);
  fmAsOf(const fmAsOf&) = delete;
  fmAsOf& operator=(const fmAsOf&) = delete;

  /// Returns once the dialog is closed.
  void ShowModal();
  /// The end of the second, or of the minute where no seconds were typed; the present moment while that is
  /// not over. Nothing while none was chosen.
  [[nodiscard]] const std::optional<std::string>& Chosen() const { return chosen_; }

 private:
  /// What is typed.
  struct Reading {
    std::optional<std::string> moment = {};
    /// In words, or why it is none.
    std::string meaning = {};
    /// The field that is to be typed anew.
    platform::TextBox* wrong = nullptr;
  };

  [[nodiscard]] Reading Read() const;
  void ShowMeaning();
  void Choose();
  void Refuse(const std::string& why, platform::TextBox& field);
  void Close();

  const platform::Platform& platform_;
  std::string start_;
  Objection objection_;
  std::shared_ptr<platform::Form> form_;
  platform::TextBox& date_;
  platform::TextBox& time_;
  platform::Label& meaning_;
  std::optional<std::string> chosen_;
  std::vector<platform::Subscription> subscriptions_;
};

}  // namespace ferrowind
