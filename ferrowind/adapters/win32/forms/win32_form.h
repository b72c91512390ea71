#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/adapters/win32/base/handles.h"
#include "ferrowind/adapters/win32/base/modal_show.h"
#include "ferrowind/adapters/win32/controls/control_host.h"
#include "ferrowind/adapters/win32/forms/form_keys.h"
#include "ferrowind/adapters/win32/forms/form_layout.h"
#include "ferrowind/adapters/win32/forms/form_window.h"
#include "ferrowind/adapters/win32/forms/placed_layout.h"
#include "ferrowind/platform/events/signal.h"
#include "ferrowind/platform/toolkit/form.h"

namespace ferrowind::win32 {

/// A form over a window. When the last reference is dropped its events end at once; window and controls go
/// when nothing of them is at work any more, so that a handler of theirs may be what drops it.
class Win32Form final : public platform::Form,
                        public std::enable_shared_from_this<Win32Form>,
                        private ControlHost {
 public:
  /// Fails as `Toolkit::CreateForm`.
  [[nodiscard]] static std::shared_ptr<Win32Form> Create(std::shared_ptr<WindowThread> thread,
                                                         const platform::FormDesign& design,
                                                         const FormLayouts& layouts);
  ~Win32Form() override;

  [[nodiscard]] const std::string& Name() const override { return site_->name; }
  [[nodiscard]] std::string Caption() const override { return caption_; }
  void SetCaption(const std::string& caption) override;
  [[nodiscard]] float Left() const override;
  void SetLeft(float left) override;
  [[nodiscard]] float Top() const override;
  void SetTop(float top) override;
  [[nodiscard]] float Width() const override;
  void SetWidth(float width) override;
  [[nodiscard]] float Height() const override;
  void SetHeight(float height) override;
  [[nodiscard]] float InnerHeight() const override;
  [[nodiscard]] platform::Control& ControlNamed(const std::string& name) override;

  void Load() override;
  void Show() override;
  void ShowModal() override;
  void Raise() override;
  void Hide() override;
  [[nodiscard]] bool IsShown() const override { return site_->is_shown; }
  bool Unload() override;

  [[nodiscard]] platform::Subscription OnLoad(std::function<void()> handler) override {
    return load_.Subscribe(std::move(handler));
  }
  [[nodiscard]] platform::Subscription OnResize(std::function<void()> handler) override {
    return resize_.Subscribe(std::move(handler));
  }
  [[nodiscard]] platform::Subscription OnCloseQuery(std::function<void(bool& cancel)> handler) override {
    return close_query_.Subscribe(std::move(handler));
  }

  [[nodiscard]] FormWindow& Window() { return *window_; }

 private:
  class Tips;

  Win32Form(std::shared_ptr<WindowThread> thread, const platform::FormDesign& design);
  static void Retire(Win32Form* form);

  [[nodiscard]] const std::shared_ptr<FormSite>& Site() const override { return site_; }
  [[nodiscard]] WindowThread& Thread() const override { return *thread_; }
  void LayoutChanged() override;
  [[nodiscard]] bool TakesKey(ControlWindow& control, UINT message, WPARAM key, LPARAM state) override;
  void GotFocus(ControlWindow& control) override { focused_ = &control; }
  void MoveFocusTo(ControlWindow& control) override;
  void PlaceMenus(std::optional<POINT> screen) override { keys_.PlaceMenus(screen); }
  void SetTip(HWND window, const std::string& text) override;

  void MakeControls(const platform::FormDesign& design, const FormLayouts& layouts);
  [[nodiscard]] FormWindow::Callbacks MakeCallbacks();
  void UseFont();
  void UseColors();
  void FitDesign(const platform::FormDesign& design);
  void Arrange();
  void TakeFocusBack();
  void TellSize();
  void Place(HWND owner);
  void Appear();
  void RequireLayoutOf(const platform::FormDesign& design) const;

  std::shared_ptr<WindowThread> thread_;
  std::shared_ptr<FormSite> site_;
  std::string caption_;
  platform::FormStart start_;
  std::unique_ptr<FormWindow> window_;
  UniqueFont font_;
  std::unique_ptr<Tips> tips_;
  std::map<std::string, std::unique_ptr<platform::Control>> controls_;
  std::unique_ptr<PlacedLayout> layout_;
  FormKeys keys_;
  /// The one that has the focus, or will have it with the window; null until one had it.
  ControlWindow* focused_ = nullptr;
  bool is_placed_ = false;
  bool is_loaded_ = false;
  bool is_closing_ = false;
  bool is_unloaded_ = false;
  /// Null while the form is not shown modally.
  ModalShow* modal_show_ = nullptr;
  platform::Signal<> load_;
  platform::Signal<> resize_;
  platform::Signal<bool&> close_query_;
};

}  // namespace ferrowind::win32
