#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "ferrowind/adapters/headless/fault_plan.h"
#include "ferrowind/platform/toolkit/toolkit.h"

namespace ferrowind::headless {

/// A toolkit of which those operations that may fail pass a plan first: making a form, and asking for a file.
class FaultyToolkit : public platform::Toolkit {
 public:
  /// Both must outlive this.
  FaultyToolkit(platform::Toolkit& inner, FaultPlan& plan) : inner_(inner), plan_(plan) {}

  [[nodiscard]] std::shared_ptr<platform::Form> CreateForm(const platform::FormDesign& design) override {
    plan_.Pass("toolkit.CreateForm");
    return inner_.CreateForm(design);
  }
  [[nodiscard]] platform::ScreenSize Screen() const override { return inner_.Screen(); }
  [[nodiscard]] float TwipsPerPixelX() const override { return inner_.TwipsPerPixelX(); }
  bool LockUpdates(platform::Element& element) override { return inner_.LockUpdates(element); }
  void UnlockUpdates() override { inner_.UnlockUpdates(); }
  [[nodiscard]] platform::Subscription After(std::int32_t milliseconds,
                                             std::function<void()> handler) override {
    return inner_.After(milliseconds, std::move(handler));
  }
  [[nodiscard]] std::optional<std::string> ChooseFileToSave(
      const std::string& title, const std::string& suggested_name,
      const std::vector<platform::FileKind>& kinds) override {
    plan_.Pass("toolkit.ChooseFileToSave");
    return inner_.ChooseFileToSave(title, suggested_name, kinds);
  }
  [[nodiscard]] std::optional<std::string> ChooseFileToOpen(
      const std::string& title, const std::string& caption,
      const std::vector<std::string>& suffixes) override {
    plan_.Pass("toolkit.ChooseFileToOpen");
    return inner_.ChooseFileToOpen(title, caption, suffixes);
  }
  void SetClipboardText(const std::string& text) override { inner_.SetClipboardText(text); }
  void ProcessPendingEvents() override { inner_.ProcessPendingEvents(); }
  void Beep() override { inner_.Beep(); }

 private:
  platform::Toolkit& inner_;
  FaultPlan& plan_;
};

}  // namespace ferrowind::headless
