#pragma once

#include <memory>
#include <string>
#include <vector>

#include "ferrowind/adapters/headless/control_host.h"
#include "ferrowind/platform/events/signal.h"

namespace ferrowind::headless {

/// The state that every headless control has, whatever its kind.
class ControlCore {
 public:
  ControlCore(ControlHost& host, std::string name) : host_(host), name_(std::move(name)) {}

  [[nodiscard]] const std::string& Name() const { return name_; }
  [[nodiscard]] bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled);
  [[nodiscard]] bool Visible() const { return visible_; }
  void SetVisible(bool visible);
  [[nodiscard]] float Height() const { return height_; }
  void SetHeight(float height);
  void SetFocus();

  /// The frame or panel that the control stands in, null for none. Must live as long as the control.
  void SetContainer(const ControlCore* container) { container_ = container; }
  /// Enabled and visible, and all that it stands in as well.
  [[nodiscard]] bool Usable() const;

  /// Records `NAME.METHOD(ARGUMENTS)`.
  void Record(const std::string& method, const std::vector<platform::Value>& arguments = {});
  /// Records an operator's action, after making sure that the operator could do it now. The result keeps the
  /// form alive through the action.
  [[nodiscard]] std::shared_ptr<void> BeginAction(const std::string& method,
                                                  const std::vector<platform::Value>& arguments = {});
  [[nodiscard]] std::shared_ptr<void> Keep() { return host_.Keep(); }
  [[nodiscard]] CallLog& Log() { return host_.Log(); }
  void TakeFocus() { host_.MoveFocusTo(*this); }
  [[noreturn]] void RaiseScriptError(const std::string& text) { host_.Errors().Raise(text); }

  /// Raised when the keyboard focus comes from elsewhere.
  platform::Signal<> got_focus;
  /// Raised when the keyboard focus goes elsewhere.
  platform::Signal<> lost_focus;

 private:
  ControlHost& host_;
  std::string name_;
  const ControlCore* container_ = nullptr;
  bool enabled_ = true;
  bool visible_ = true;
  float height_ = 300;
};

}  // namespace ferrowind::headless
