#pragma once

#include <memory>
#include <string>

#include "ferrowind/adapters/win32/controls/balloon.h"
#include "ferrowind/adapters/win32/controls/control_window.h"
#include "ferrowind/platform/toolkit/date_picker.h"

namespace ferrowind::win32 {

class CalendarPopup;

/// A line to type a day in, with a button that opens the platform's month calendar. (The platform's own date
/// picker takes each digit for a part of a date, and so cannot hold a text that is none.)
class Win32DatePicker final : public Win32Control<platform::DatePicker> {
 public:
  Win32DatePicker(ControlHost& host, std::string name, HWND parent);
  ~Win32DatePicker() override;

  [[nodiscard]] platform::Date Date() const override { return date_; }
  void SetDate(const platform::Date& date) override;
  void SetCustomFormat(const std::string& format) override;
  [[nodiscard]] bool RequireDate() override;

  /// Whether the operator is told that the text is refused.
  [[nodiscard]] bool ShowsRefusal() const { return refusal_.IsShown(); }

  void OnCommand(WORD notification, WORD id) override;
  [[nodiscard]] bool CanHaveFocus() const override { return true; }
  [[nodiscard]] bool TakesText() const override { return true; }

 protected:
  LRESULT OnMessage(UINT message, WPARAM w_param, LPARAM l_param) override;
  void OnFocusLost() override;
  [[nodiscard]] SIZE NeededSize() const override;

 private:
  class OpenButton;

  void Open();
  void ShowDate();

  platform::Date date_;
  std::wstring format_;
  bool holds_date_ = true;
  Balloon refusal_{*this};
  /// While the text is the program's, what the line tells of it is no news.
  bool is_showing_ = false;
  std::unique_ptr<OpenButton> button_;
  std::unique_ptr<CalendarPopup> popup_;
  platform::Subscription popup_end_;
};

}  // namespace ferrowind::win32
