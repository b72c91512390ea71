#include "ferrowind/adapters/win32/controls/calendar_popup.h"

#include <array>
#include <utility>

namespace ferrowind::win32 {
namespace {

SYSTEMTIME TimeOf(int year, int month, int day) {
  SYSTEMTIME time{};
  time.wYear = static_cast<WORD>(year);
  time.wMonth = static_cast<WORD>(month);
  time.wDay = static_cast<WORD>(day);
  return time;
}

}  // namespace

class CalendarPopup::Month final : public NativeWindow {
 public:
  explicit Month(CalendarPopup& popup)
      : NativeWindow(popup.Site(), {.window_class = MONTHCAL_CLASSW,
                                    .style = WS_CHILD | WS_VISIBLE | MCS_NOTODAYCIRCLE,
                                    .parent = popup.Handle()}),
        popup_(popup) {}

  [[nodiscard]] std::optional<LRESULT> OnNotify(NMHDR& header) override {
    if (header.code != MCN_SELECT) return std::nullopt;
    SYSTEMTIME time{};
    SendMessageW(Handle(), MCM_GETCURSEL, 0, reinterpret_cast<LPARAM>(&time));
    ShowWindow(popup_.Handle(), SW_HIDE);
    if (const auto picked = std::exchange(popup_.picked_, nullptr))
      picked(platform::Date(time.wYear, time.wMonth, time.wDay));
    return 0;
  }

 protected:
  LRESULT OnMessage(UINT message, WPARAM w_param, LPARAM l_param) override {
    if (message == WM_KEYDOWN && w_param == VK_ESCAPE) {
      ShowWindow(popup_.Handle(), SW_HIDE);
      return 0;
    }
    return NativeWindow::OnMessage(message, w_param, l_param);
  }

 private:
  CalendarPopup& popup_;
};

CalendarPopup::CalendarPopup(HWND below, std::shared_ptr<FormSite> site, const platform::Date& date,
                             std::function<void(const platform::Date&)> picked, std::function<void()> closed)
    : NativeWindow(std::move(site), {.window_class = PaneClass(),
                                     .style = WS_POPUP | WS_BORDER,
                                     .extended_style = WS_EX_TOOLWINDOW,
                                     .parent = GetAncestor(below, GA_ROOT)}),
      picked_(std::move(picked)),
      closed_(std::move(closed)),
      month_(std::make_unique<Month>(*this)) {
  std::array<SYSTEMTIME, 2> year{TimeOf(date.Year(), 1, 1), TimeOf(date.Year(), 12, 31)};
  SendMessageW(month_->Handle(), MCM_SETRANGE, GDTR_MIN | GDTR_MAX, reinterpret_cast<LPARAM>(year.data()));
  SYSTEMTIME day = TimeOf(date.Year(), date.Month(), date.Day());
  SendMessageW(month_->Handle(), MCM_SETCURSEL, 0, reinterpret_cast<LPARAM>(&day));
  RECT needed{};
  SendMessageW(month_->Handle(), MCM_GETMINREQRECT, 0, reinterpret_cast<LPARAM>(&needed));
  SetWindowPos(month_->Handle(), nullptr, 0, 0, needed.right, needed.bottom, SWP_NOZORDER);
  AdjustWindowRectEx(&needed, WS_POPUP | WS_BORDER, FALSE, WS_EX_TOOLWINDOW);
  RECT owner{};
  GetWindowRect(below, &owner);
  SetWindowPos(Handle(), HWND_TOP, owner.left, owner.bottom, needed.right - needed.left,
               needed.bottom - needed.top, SWP_SHOWWINDOW);
  ::SetFocus(month_->Handle());
}

CalendarPopup::~CalendarPopup() = default;

LRESULT CalendarPopup::OnMessage(UINT message, WPARAM w_param, LPARAM l_param) {
  if (message == WM_ACTIVATE && LOWORD(w_param) == WA_INACTIVE) ShowWindow(Handle(), SW_HIDE);
  if (message == WM_SHOWWINDOW && w_param == FALSE) {
    if (const auto closed = std::exchange(closed_, nullptr)) closed();
  }
  return NativeWindow::OnMessage(message, w_param, l_param);
}

}  // namespace ferrowind::win32
