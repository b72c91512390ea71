#include "ferrowind/adapters/win32/forms/win32_form.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "ferrowind/adapters/win32/base/run_guarded.h"
#include "ferrowind/adapters/win32/base/twips.h"
#include "ferrowind/adapters/win32/base/wide_text.h"
#include "ferrowind/adapters/win32/controls/control_window.h"
#include "ferrowind/adapters/win32/forms/control_maker.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::win32 {

using platform::Failure;
using platform::FormStart;
using platform::Interruption;
namespace failure_number = platform::failure_number;

namespace {

void RequireFinite(float length) {
  if (!std::isfinite(length)) throw platform::InvalidArgument();
}

void RequireSize(float size) {
  RequireFinite(size);
  if (size < 0) throw platform::InvalidArgument();
}

ControlWindow& WindowOf(platform::Control& control) { return dynamic_cast<ControlWindow&>(control); }

}  // namespace

/// The small windows that tell what the mouse rests on.
class Win32Form::Tips final : public NativeWindow {
 public:
  Tips(std::shared_ptr<FormSite> site, HWND form)
      : NativeWindow(std::move(site), {.window_class = TOOLTIPS_CLASSW,
                                       .style = WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX,
                                       .extended_style = WS_EX_TOPMOST,
                                       .parent = form}) {}

  void Set(HWND window, const std::string& text) {
    std::wstring wide = ToWide(text);
    TTTOOLINFOW tool{};
    tool.cbSize = TTTOOLINFOW_V2_SIZE;
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = GetParent(Handle());
    tool.uId = reinterpret_cast<UINT_PTR>(window);
    tool.lpszText = wide.data();
    SendMessageW(Handle(), TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    if (!wide.empty()) SendMessageW(Handle(), TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  }
};

// Making and dropping
// ------------------------------------------------------------------------------------------------

std::shared_ptr<Win32Form> Win32Form::Create(std::shared_ptr<WindowThread> thread,
                                             const platform::FormDesign& design, const FormLayouts& layouts) {
  std::shared_ptr<Win32Form> form(new Win32Form(std::move(thread), design), &Win32Form::Retire);
  form->MakeControls(design, layouts);
  return form;
}

Win32Form::Win32Form(std::shared_ptr<WindowThread> thread, const platform::FormDesign& design)
    : thread_(std::move(thread)),
      site_(std::make_shared<FormSite>(FormSite{.name = design.name, .colors = &thread_->Colors()})),
      start_(design.start),
      window_(std::make_unique<FormWindow>(site_, design.border)),
      tips_(std::make_unique<Tips>(site_, window_->Handle())),
      keys_([this] { PostMessageW(window_->Handle(), WM_CLOSE, 0, 0); }) {}

Win32Form::~Win32Form() { site_->window = nullptr; }

void Win32Form::Retire(Win32Form* form) {
  const auto thread = form->thread_;
  const auto site = form->site_;
  site->is_retired = true;
  form->window_->SetCallbacks({});
  for (const auto& [name, control] : form->controls_) WindowOf(*control).Mute();
  ModalShow::InterruptThoseOf(*thread, site->window);
  form->Hide();
  thread->Retire(site,
                 std::shared_ptr<void>(form, [](void* remains) { delete static_cast<Win32Form*>(remains); }));
}

void Win32Form::RequireLayoutOf(const platform::FormDesign& design) const {
  for (const platform::ControlDesign& control : design.controls) {
    if (controls_.contains(control.name)) continue;
    throw Failure(failure_number::kElementNotFound,
                  "The layout of the form " + Name() + " has no control " + control.name);
  }
}

void Win32Form::MakeControls(const platform::FormDesign& design, const FormLayouts& layouts) {
  const LayoutPlace* places = layouts.Find(design.name);
  if (places == nullptr)
    throw Failure(failure_number::kElementNotFound, "There is no layout of a form " + design.name);
  const auto make = [&](const LayoutPlace& place, ControlWindow* container) -> ControlWindow* {
    const auto found = std::find_if(design.controls.begin(), design.controls.end(),
                                    [&](const auto& control) { return control.name == place.name; });
    if (found == design.controls.end()) return nullptr;
    const HWND parent = container != nullptr ? container->Handle() : window_->Handle();
    auto& control = controls_[place.name] = MakeControl(*found, *this, parent);
    WindowOf(*control).SetContainer(container);
    const std::wstring spoken = thread_->Words().Translated(place.spoken_name);
    // Windows of these kinds show no text of their own.
    if (!spoken.empty()) SetWindowTextW(WindowOf(*control).Handle(), spoken.c_str());
    return &WindowOf(*control);
  };
  layout_ = std::make_unique<PlacedLayout>(*places, make);
  RequireLayoutOf(design);
  for (const platform::ControlDesign& control : design.controls)
    keys_.Add(control, WindowOf(*controls_.at(control.name)));
  keys_.Settle(design);
  SetCaption(design.caption);
  UseFont();
  UseColors();
  FitDesign(design);
  window_->SetCallbacks(MakeCallbacks());
}

FormWindow::Callbacks Win32Form::MakeCallbacks() {
  return {.close_asked = [this] { Unload(); },
          .resized =
              [this] {
                Arrange();
                TellSize();
              },
          .resolution_changed = [this] { UseFont(); },
          .colors_changed = [this] { UseColors(); },
          .focus_came = [this] { TakeFocusBack(); },
          .key = [this](UINT message, WPARAM key,
                        LPARAM state) { return keys_.Takes(nullptr, message, key, state); }};
}

void Win32Form::UseFont() {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  SystemParametersInfoForDpi(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0, window_->DotsPerInch());
  UniqueFont font(CreateFontIndirectW(&metrics.lfMessageFont));
  for (const auto& [name, control] : controls_) WindowOf(*control).UseFont(font.get());
  // The one before goes now that nobody uses it.
  font_ = std::move(font);
}

void Win32Form::UseColors() {
  thread_->TakeColors();
  window_->UseColors();
  for (const auto& [name, control] : controls_) WindowOf(*control).UseColors();
  RedrawWindow(window_->Handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void Win32Form::FitDesign(const platform::FormDesign& design) {
  const UINT dpi = window_->DotsPerInch();
  SIZE size{ToPixels(design.client_width, dpi), ToPixels(design.client_height, dpi)};
  if (design.border != platform::FormBorder::kSizable) {
    const SIZE needed = layout_->NeededSize(dpi);
    size = {std::max(size.cx, needed.cx), std::max(size.cy, needed.cy)};
  }
  window_->SetClientSize(size);
  Arrange();
}

platform::Control& Win32Form::ControlNamed(const std::string& name) {
  const auto found = controls_.find(name);
  if (found == controls_.end()) throw platform::NoSuchControl(*this, name);
  return *found->second;
}

// What the controls ask of their form
// ------------------------------------------------------------------------------------------------

void Win32Form::LayoutChanged() {
  // Before that the form itself arranges everything.
  if (layout_ != nullptr) Arrange();
}

void Win32Form::Arrange() {
  RECT room{};
  GetClientRect(window_->Handle(), &room);
  if (room.right > 0 && room.bottom > 0) layout_->Arrange(room, window_->DotsPerInch());
}

bool Win32Form::TakesKey(ControlWindow& control, UINT message, WPARAM key, LPARAM state) {
  return !site_->is_retired && keys_.Takes(&control, message, key, state);
}

void Win32Form::MoveFocusTo(ControlWindow& control) {
  focused_ = &control;
  if (site_->is_shown) ::SetFocus(control.Handle());
}

void Win32Form::TakeFocusBack() {
  if (focused_ == nullptr || !focused_->IsUsable()) focused_ = keys_.First();
  if (focused_ != nullptr) ::SetFocus(focused_->Handle());
}

void Win32Form::SetTip(HWND window, const std::string& text) { tips_->Set(window, text); }

void Win32Form::TellSize() {
  if (!is_loaded_ || is_unloaded_ || site_->is_retired) return;
  const EventOf event(*thread_, site_);
  RunGuarded(Name(), [this] { resize_.Emit(); });
}

// Caption and geometry
// ------------------------------------------------------------------------------------------------

void Win32Form::SetCaption(const std::string& caption) {
  caption_ = caption;
  SetWindowTextW(window_->Handle(), ToWide(caption).c_str());
}

float Win32Form::Left() const {
  return ToTwips(static_cast<int>(window_->OuterArea().left), window_->DotsPerInch());
}

void Win32Form::SetLeft(float left) {
  RequireFinite(left);
  is_placed_ = true;
  RECT area = window_->OuterArea();
  OffsetRect(&area, ToPixels(left, window_->DotsPerInch()) - static_cast<int>(area.left), 0);
  window_->SetOuterArea(area);
}

float Win32Form::Top() const {
  return ToTwips(static_cast<int>(window_->OuterArea().top), window_->DotsPerInch());
}

void Win32Form::SetTop(float top) {
  RequireFinite(top);
  is_placed_ = true;
  RECT area = window_->OuterArea();
  OffsetRect(&area, 0, ToPixels(top, window_->DotsPerInch()) - static_cast<int>(area.top));
  window_->SetOuterArea(area);
}

float Win32Form::Width() const {
  const RECT area = window_->OuterArea();
  return ToTwips(static_cast<int>(area.right - area.left), window_->DotsPerInch());
}

void Win32Form::SetWidth(float width) {
  RequireSize(width);
  RECT area = window_->OuterArea();
  area.right = area.left + ToPixels(width, window_->DotsPerInch());
  window_->SetOuterArea(area);
}

float Win32Form::Height() const {
  const RECT area = window_->OuterArea();
  return ToTwips(static_cast<int>(area.bottom - area.top), window_->DotsPerInch());
}

void Win32Form::SetHeight(float height) {
  RequireSize(height);
  RECT area = window_->OuterArea();
  area.bottom = area.top + ToPixels(height, window_->DotsPerInch());
  window_->SetOuterArea(area);
}

float Win32Form::InnerHeight() const {
  RECT room{};
  GetClientRect(window_->Handle(), &room);
  return ToTwips(static_cast<int>(room.bottom), window_->DotsPerInch());
}

// Showing and closing
// ------------------------------------------------------------------------------------------------

void Win32Form::Load() {
  if (is_loaded_ || is_unloaded_) return;
  const auto keep = shared_from_this();
  is_loaded_ = true;
  const EventOf event(*thread_, site_);
  RunGuarded(Name(), [this] { load_.Emit(); });
}

void Win32Form::Show() {
  const auto keep = shared_from_this();
  Load();
  if (is_unloaded_ || site_->is_shown) return;
  Place(nullptr);
  Appear();
}

void Win32Form::ShowModal() {
  const auto keep = shared_from_this();
  Load();
  if (is_unloaded_ || modal_show_ != nullptr) return;
  Hide();
  ModalShow show(*thread_, site_, [this] { Hide(); });
  modal_show_ = &show;
  SetWindowLongPtrW(window_->Handle(), GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(show.Owner()));
  Place(show.Owner());
  show.DisableOthers();
  Appear();
  // It may be hidden already by what its appearance raised.
  bool application_ends = false;
  MSG message{};
  while (site_->is_shown && !application_ends) {
    application_ends = GetMessageW(&message, nullptr, 0, 0) <= 0;
    if (application_ends) break;
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  Hide();
  modal_show_ = nullptr;
  if (application_ends) PostQuitMessage(static_cast<int>(message.wParam));
  // Whoever waits for the form would take a return for an answer that the operator did not give.
  if (show.IsInterrupted())
    throw Interruption("The window that the form " + Name() + " belongs to has closed");
  if (application_ends)
    throw Interruption("The application is ending; the form " + Name() + " was left open");
}

void Win32Form::Raise() {
  if (!site_->is_shown) return;
  if (IsIconic(window_->Handle()) != 0) ShowWindow(window_->Handle(), SW_RESTORE);
  SetForegroundWindow(window_->Handle());
}

void Win32Form::Hide() {
  if (!site_->is_shown) return;
  site_->is_shown = false;
  if (modal_show_ != nullptr) modal_show_->EnableOthers();
  ShowWindow(window_->Handle(), SW_HIDE);
  // Whoever waits for it to be hidden looks after the next message.
  PostMessageW(window_->Handle(), WM_NULL, 0, 0);
}

bool Win32Form::Unload() {
  if (is_unloaded_) return true;
  if (is_closing_) return false;
  // A handler may drop the form while its destruction is under way, which is no time to share it.
  const auto keep = weak_from_this().lock();
  if (is_loaded_) {
    bool is_refused = false;
    is_closing_ = true;
    const EventOf event(*thread_, site_);
    RunGuarded(Name(), [&] { close_query_.Emit(is_refused); });
    is_closing_ = false;
    if (is_refused) return false;
  }
  is_unloaded_ = true;
  ModalShow::InterruptThoseOf(*thread_, site_->window);
  Hide();
  return true;
}

void Win32Form::Place(HWND owner) {
  if (start_ == FormStart::kAsPlaced || is_placed_) return;
  const HWND near_by = owner != nullptr ? owner : window_->Handle();
  MONITORINFO monitor{};
  monitor.cbSize = sizeof monitor;
  GetMonitorInfoW(MonitorFromWindow(near_by, MONITOR_DEFAULTTOPRIMARY), &monitor);
  RECT middle = monitor.rcMonitor;
  if (start_ == FormStart::kCenterOwner && owner != nullptr) GetWindowRect(owner, &middle);
  RECT area = window_->OuterArea();
  const LONG width = area.right - area.left;
  const LONG height = area.bottom - area.top;
  const RECT& room = monitor.rcWork;
  // A dialog of an owner at the edge of the screen stays in reach.
  const LONG left = std::clamp((middle.left + middle.right - width) / 2, room.left,
                               std::max(room.left, room.right - width));
  const LONG top = std::clamp((middle.top + middle.bottom - height) / 2, room.top,
                              std::max(room.top, room.bottom - height));
  window_->SetOuterArea({left, top, left + width, top + height});
}

void Win32Form::Appear() {
  site_->is_shown = true;
  ShowWindow(window_->Handle(), SW_SHOW);
  SetForegroundWindow(window_->Handle());
  TakeFocusBack();
  TellSize();
}

}  // namespace ferrowind::win32
