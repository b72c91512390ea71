#pragma once

#include <QEventLoop>
#include <QPointer>
#include <memory>
#include <string>
#include <vector>

#include "ferrowind/adapters/qt/controls/element.h"
#include "ferrowind/adapters/qt/forms/design_traits.h"
#include "ferrowind/adapters/qt/forms/form_layouts.h"
#include "ferrowind/adapters/qt/forms/form_window.h"
#include "ferrowind/platform/events/signal.h"
#include "ferrowind/platform/toolkit/form.h"

namespace ferrowind::qt {

/// A form over a window. When the last reference is dropped its events end at once; window and controls go
/// from the event loop, so that a handler of theirs may be what drops it.
class QtForm : public platform::Form, public WidgetElement, public std::enable_shared_from_this<QtForm> {
 public:
  /// Fails as `Toolkit::CreateForm`. With a `place` the form is a part of that widget
  /// (`QtToolkit::PlaceForm`).
  [[nodiscard]] static std::shared_ptr<QtForm> Create(const platform::FormDesign& design,
                                                      const FormLayouts& layouts, QWidget* place = nullptr);

  [[nodiscard]] const std::string& Name() const override { return name_; }
  [[nodiscard]] std::string Caption() const override;
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
  [[nodiscard]] bool IsShown() const override;
  bool Unload() override;
  /// Whether it is a part of a host's window.
  [[nodiscard]] bool IsPart() const { return !window_->isWindow(); }
  /// Whether it is a dialog on show that only its own buttons close.
  [[nodiscard]] bool AwaitsAnswer() const;

  [[nodiscard]] platform::Subscription OnLoad(std::function<void()> handler) override;
  [[nodiscard]] platform::Subscription OnResize(std::function<void()> handler) override;
  [[nodiscard]] platform::Subscription OnCloseQuery(std::function<void(bool& cancel)> handler) override;

  [[nodiscard]] QWidget& ElementWidget() override { return *window_; }
  void Mute() override;

 private:
  explicit QtForm(const platform::FormDesign& design);
  static void Retire(QtForm* form);

  void MakeControls(const platform::FormDesign& design, const FormLayouts& layouts, QWidget* place);
  [[nodiscard]] std::unique_ptr<platform::Control> MakeDesignedControl(const platform::ControlDesign& design);
  void Place(const QWidget* owner);
  void Appear(Qt::WindowModality modality);

  std::string name_;
  platform::FormStart start_;
  /// Owns itself, and this form once it is retired.
  FormWindow* window_;
  FormControls controls_;
  bool is_loaded_ = false;
  bool is_closing_ = false;
  bool is_unloaded_ = false;
  bool is_muted_ = false;
  /// Runs while the form is shown modally.
  QPointer<QEventLoop> modal_loop_;
  platform::Signal<> load_;
  platform::Signal<> resize_;
  platform::Signal<bool&> close_query_;
};

}  // namespace ferrowind::qt
