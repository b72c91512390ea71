#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "ferrowind/data/action_scope.h"
#include "ferrowind/platform/events/subscription.h"
#include "ferrowind/platform/platform.h"

namespace ferrowind {

/// The dialog that creates the calendar of one currency for one year, and stores it itself.
///
/// A fresh one for each use. It unloads itself; its values stay readable afterwards.
class fmSelectYear {
 public:
  /// `platform` must outlive the dialog.
  explicit fmSelectYear(const platform::Platform& platform);
  fmSelectYear(const fmSelectYear&) = delete;
  fmSelectYear& operator=(const fmSelectYear&) = delete;

  [[nodiscard]] std::string Caption() const;
  void SetCaption(const std::string& caption);
  /// The currency of the new calendar; set it before the dialog is shown.
  [[nodiscard]] std::int32_t CcyID() const { return currency_id_; }
  void SetCcyID(std::int32_t currency_id) { currency_id_ = currency_id; }
  /// The name that the host's observer is told for the currency.
  void SetCurrency(const std::string& name) { currency_ = name; }
  /// Returns once the dialog is closed.
  void ShowModal();
  /// 0 for "Create", 1 for "Cancel"; 0 while nothing was pressed. 0 does not mean that the calendar could be
  /// stored.
  [[nodiscard]] std::int32_t Result() const { return result_; }
  /// Whether "Create" was pressed and the calendar could be stored.
  [[nodiscard]] bool HasCreated() const { return has_created_; }
  /// The year in the field when "Create" was pressed; 0 until then.
  [[nodiscard]] std::int32_t EnterYear() const { return year_; }

 private:
  void Load();
  void ShowSpinnerYear();
  void ShowNote(bool is_needed);
  void Create();
  void Store(std::int32_t year);
  void Cancel();

  const platform::Platform& platform_;
  std::shared_ptr<platform::Form> form_;
  platform::TextBox& year_field_;
  platform::UpDown& spinner_;
  platform::Label& range_note_;
  std::int32_t currency_id_ = 0;
  std::string currency_;
  std::int32_t result_ = 0;
  std::int32_t year_ = 0;
  bool has_created_ = false;
  platform::Subscription loaded_;
  platform::Subscription spinner_changed_;
  platform::Subscription year_changed_;
  platform::Subscription create_clicked_;
  platform::Subscription cancel_clicked_;
  /// Lasts until the dialog is dropped, when its caller has shown the new calendar.
  std::optional<ActionScope> creation_;
};

}  // namespace ferrowind
