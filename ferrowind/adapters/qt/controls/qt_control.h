#pragma once

#include <QObject>
#include <QWidget>
#include <string>
#include <type_traits>

#include "ferrowind/adapters/qt/controls/element.h"
#include "ferrowind/adapters/qt/controls/modal_show.h"
#include "ferrowind/adapters/qt/controls/widget_height.h"
#include "ferrowind/adapters/qt/values/qt_text.h"
#include "ferrowind/platform/events/signal.h"
#include "ferrowind/platform/toolkit/control.h"

namespace ferrowind::qt {

/// What every control of a form does in the same way, over a widget of the form's layout.
///
/// The widget outlives the control. `Port` is the port of the control's kind.
template <typename Port>
class QtControl : public Port, public WidgetElement {
 public:
  explicit QtControl(QWidget& widget) : element_widget_(widget), name_(FromQt(widget.objectName())) {}

  [[nodiscard]] const std::string& Name() const override { return name_; }
  [[nodiscard]] bool Enabled() const override { return !element_widget_.testAttribute(Qt::WA_ForceDisabled); }
  void SetEnabled(bool enabled) override { element_widget_.setEnabled(enabled); }
  [[nodiscard]] bool Visible() const override { return !element_widget_.isHidden(); }
  void SetVisible(bool visible) override { element_widget_.setVisible(visible); }
  [[nodiscard]] float Height() const override { return HeightOf(element_widget_); }
  void SetHeight(float height) override { SetHeightOf(element_widget_, height); }
  void SetFocus() override {
    if (element_widget_.isEnabled() && !element_widget_.isHidden()) element_widget_.setFocus();
  }

  [[nodiscard]] QWidget& ElementWidget() override { return element_widget_; }
  void Mute() override { is_muted_ = true; }

 protected:
  template <typename... Arguments>
  void Raise(const platform::Signal<Arguments...>& signal, std::type_identity_t<Arguments>... arguments) {
    if (is_muted_) return;
    const EventOf event(element_widget_);
    RunGuarded(name_, [&] { signal.Emit(arguments...); });
  }
  /// The context of the control's connections: they end with the control.
  [[nodiscard]] const QObject* Context() const { return &context_; }

 private:
  QWidget& element_widget_;
  std::string name_;
  bool is_muted_ = false;
  QObject context_;
};

}  // namespace ferrowind::qt
