#pragma once

#include <string>
#include <utility>

#include "ferrowind/adapters/win32/controls/control_window.h"
#include "ferrowind/platform/toolkit/year_view.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::win32 {

/// The place of a year view, which this adapter cannot draw yet: whatever would show a year is a failure that
/// says so. Hosts show the windows without the parts that need it.
class Win32YearView final : public Win32Control<platform::YearView> {
 public:
  Win32YearView(ControlHost& host, std::string name, HWND parent)
      : Win32Control(host, std::move(name), {.window_class = PaneClass(), .style = 0, .parent = parent}) {}

  void SetContent(platform::YearContent /*content*/) override { throw NotDrawn(); }
  [[nodiscard]] std::optional<platform::YearCell> Current() const override { return std::nullopt; }
  void SetCurrent(const platform::YearCell& /*cell*/) override { throw NotDrawn(); }
  [[nodiscard]] std::vector<platform::YearCell> Selected() const override { return {}; }
  void SavePages(platform::PageFile /*kind*/, const std::string& /*path*/,
                 const std::string& /*heading*/) override {
    throw NotDrawn();
  }
  bool PrintPages(const std::string& /*heading*/) override { throw NotDrawn(); }
  [[nodiscard]] platform::Subscription OnCurrentChange(std::function<void()> handler) override {
    return never_.Subscribe(std::move(handler));
  }
  [[nodiscard]] platform::Subscription OnSelectionChange(std::function<void()> handler) override {
    return never_.Subscribe(std::move(handler));
  }
  [[nodiscard]] platform::Subscription OnActivate(std::function<void()> handler) override {
    return never_.Subscribe(std::move(handler));
  }
  [[nodiscard]] platform::Subscription OnMenuAsked(std::function<void()> handler) override {
    return never_.Subscribe(std::move(handler));
  }

  [[nodiscard]] bool FillsHeight() const override { return true; }

 protected:
  [[nodiscard]] SIZE NeededSize() const override { return {}; }

 private:
  [[nodiscard]] platform::Failure NotDrawn() const {
    return {platform::failure_number::kInvalidArgument,
            "The native windows cannot show a year at a glance yet; " + ControlName() + " is such a view"};
  }

  platform::Signal<> never_;
};

}  // namespace ferrowind::win32
