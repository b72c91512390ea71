#pragma once

#include <functional>
#include <memory>

#include "ferrowind/adapters/win32/base/native_window.h"
#include "ferrowind/platform/values/date.h"

namespace ferrowind::win32 {

/// The platform's month calendar of one year, open below a control until a day is picked or the focus goes.
class CalendarPopup final : public NativeWindow {
 public:
  /// `picked` is called at most once; both are called out of the message loop, and may delete the popup only
  /// from a later message.
  CalendarPopup(HWND below, std::shared_ptr<FormSite> site, const platform::Date& date,
                std::function<void(const platform::Date&)> picked, std::function<void()> closed);
  ~CalendarPopup() override;

 protected:
  LRESULT OnMessage(UINT message, WPARAM w_param, LPARAM l_param) override;

 private:
  class Month;

  std::function<void(const platform::Date&)> picked_;
  std::function<void()> closed_;
  std::unique_ptr<Month> month_;
};

}  // namespace ferrowind::win32
