#pragma once

#include <string>
#include <utility>

#include "ferrowind/adapters/headless/control_core.h"
#include "ferrowind/platform/toolkit/control.h"

namespace ferrowind::headless {

/// What the form does with its controls, whatever their kind.
class CoreOwner {
 public:
  virtual ~CoreOwner() = default;
  [[nodiscard]] virtual ControlCore& Core() = 0;
};

/// A control of the port `Port`, without anything on a screen. Kinds derive from it and add what they are
/// for.
template <typename Port>
class HeadlessControl : public Port, public CoreOwner {
 public:
  HeadlessControl(ControlHost& host, std::string name) : core_(host, std::move(name)) {}

  [[nodiscard]] const std::string& Name() const override { return core_.Name(); }
  [[nodiscard]] bool Enabled() const override { return core_.Enabled(); }
  void SetEnabled(bool enabled) override { core_.SetEnabled(enabled); }
  [[nodiscard]] bool Visible() const override { return core_.Visible(); }
  void SetVisible(bool visible) override { core_.SetVisible(visible); }
  [[nodiscard]] float Height() const override { return core_.Height(); }
  void SetHeight(float height) override { core_.SetHeight(height); }
  void SetFocus() override { core_.SetFocus(); }
  [[nodiscard]] ControlCore& Core() override { return core_; }

 protected:
  ControlCore core_;
};

/// A frame, panel or splitter: a control that only holds others.
class HeadlessContainer : public HeadlessControl<platform::Control> {
 public:
  using HeadlessControl::HeadlessControl;
};

}  // namespace ferrowind::headless
