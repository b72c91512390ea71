#include "ferrowind/adapters/win32/controls/date_picker.h"

#include <utility>

#include "ferrowind/adapters/win32/base/buffered_paint.h"
#include "ferrowind/adapters/win32/base/twips.h"
#include "ferrowind/adapters/win32/base/wide_text.h"
#include "ferrowind/adapters/win32/controls/calendar_popup.h"
#include "ferrowind/adapters/win32/controls/shapes.h"
#include "ferrowind/adapters/win32/controls/window_text.h"
#include "ferrowind/adapters/win32/dates/date_words.h"
#include "ferrowind/adapters/win32/dates/typed_date.h"

namespace ferrowind::win32 {
namespace {

platform::Date Today() {
  SYSTEMTIME now{};
  GetLocalTime(&now);
  return {now.wYear, now.wMonth, now.wDay};
}

}  // namespace

/// Stands at the right end of the line.
class Win32DatePicker::OpenButton final : public NativeWindow {
 public:
  explicit OpenButton(Win32DatePicker& picker)
      : NativeWindow(picker.Site(), {.window_class = WC_BUTTONW,
                                     .style = WS_CHILD | WS_VISIBLE | BS_PUSHBUTTON,
                                     .parent = picker.Handle()}),
        picker_(picker) {}

  void OnCommand(WORD notification, WORD /*id*/) override {
    if (notification == BN_CLICKED) picker_.Open();
  }

 protected:
  /// As the closed lists beside it.
  LRESULT OnMessage(UINT message, WPARAM w_param, LPARAM l_param) override {
    if (message == WM_ERASEBKGND) return 1;
    if (message != WM_PAINT) return NativeWindow::OnMessage(message, w_param, l_param);
    const BufferedPaint paint(Handle());
    if (paint.Context() == nullptr) return 0;
    const Theme& colors = picker_.Colors();
    const bool is_enabled = IsWindowEnabled(picker_.Handle()) != 0;
    SetDCBrushColor(paint.Context(), is_enabled ? colors.window : colors.face);
    FillRect(paint.Context(), &paint.Room(), static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
    Shapes(paint.Context()).Chevron(paint.Room(), is_enabled ? colors.text : colors.muted);
    return 0;
  }

 private:
  Win32DatePicker& picker_;
};

Win32DatePicker::Win32DatePicker(ControlHost& host, std::string name, HWND parent)
    : Win32Control(host, std::move(name),
                   {.window_class = WC_EDITW,
                    .style = ES_AUTOHSCROLL | WS_TABSTOP | WS_CLIPCHILDREN,
                    .extended_style = WS_EX_CLIENTEDGE,
                    .parent = parent}),
      date_(Today()),
      format_(L"d MMMM yyyy"),
      button_(std::make_unique<OpenButton>(*this)) {
  ShowDate();
}

Win32DatePicker::~Win32DatePicker() = default;

void Win32DatePicker::SetDate(const platform::Date& date) {
  date_ = date;
  ShowDate();
}

void Win32DatePicker::SetCustomFormat(const std::string& format) {
  format_ = ToWide(format);
  if (holds_date_) ShowDate();
}

void Win32DatePicker::ShowDate() {
  holds_date_ = true;
  is_showing_ = true;
  SetWindowTextW(Handle(), FormatDate(date_, format_).c_str());
  is_showing_ = false;
  refusal_.Hide();
}

bool Win32DatePicker::RequireDate() {
  if (holds_date_) return true;
  TakeFocus();
  const platform::Date example(date_.Year(), 12, 31);
  const std::wstring refusal =
      Words().Translated("This is no date. Write a day and a month without a year, such as %1 or %2.",
                         FormatDate(example, L"d MMMM"), NumbersOfDay(example));
  refusal_.Show(refusal);
  NotifyWinEvent(EVENT_SYSTEM_ALERT, Handle(), OBJID_CLIENT, CHILDID_SELF);
  return false;
}

void Win32DatePicker::OnCommand(WORD notification, WORD /*id*/) {
  if (notification != EN_CHANGE) return;
  // Changed text is painted over what stands in the line.
  InvalidateRect(button_->Handle(), nullptr, FALSE);
  if (is_showing_) return;
  const auto typed = TypedDates().Read(FromWide(WindowText(Handle())), date_.Year()).date;
  holds_date_ = typed && typed->Year() == date_.Year();
  if (!holds_date_) return;
  date_ = *typed;
  refusal_.Hide();
}

void Win32DatePicker::OnFocusLost() {
  refusal_.Hide();
  if (holds_date_) ShowDate();
}

void Win32DatePicker::Open() {
  popup_ = std::make_unique<CalendarPopup>(
      Handle(), Site(), date_,
      [this](const platform::Date& picked) {
        SetDate(picked);
        TakeFocus();
      },
      [this] { popup_end_ = Host().Thread().After(0, [this] { popup_.reset(); }); });
}

LRESULT Win32DatePicker::OnMessage(UINT message, WPARAM w_param, LPARAM l_param) {
  const bool opens =
      (message == WM_KEYDOWN && w_param == VK_F4) || (message == WM_SYSKEYDOWN && w_param == VK_DOWN);
  if (opens) {
    Open();
    return 0;
  }
  const LRESULT result = ControlWindow::OnMessage(message, w_param, l_param);
  if (message == WM_ENABLE && button_ != nullptr) InvalidateRect(button_->Handle(), nullptr, FALSE);
  if (message == WM_SIZE && button_ != nullptr) {
    RECT area{};
    GetClientRect(Handle(), &area);
    constexpr int kButtonWidth = 18;
    const int width = Scaled(kButtonWidth, DotsPerInch());
    SetWindowPos(button_->Handle(), nullptr, area.right - width, 0, width, area.bottom, SWP_NOZORDER);
    SendMessageW(Handle(), EM_SETMARGINS, EC_RIGHTMARGIN, MAKELPARAM(0, width));
  }
  return result;
}

SIZE Win32DatePicker::NeededSize() const {
  constexpr int kBesideText = 40;
  constexpr int kAroundText = 8;
  // The longest name of a month, by and large.
  return {TextSize("30 September 2026").cx + Scaled(kBesideText, DotsPerInch()),
          TextSize("X").cy + Scaled(kAroundText, DotsPerInch())};
}

}  // namespace ferrowind::win32
