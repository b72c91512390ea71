#pragma once

#include "ferrowind/adapters/win32/controls/control_window.h"
#include "ferrowind/platform/toolkit/up_down.h"

namespace ferrowind::win32 {

/// The platform's arrows with a number of their own: the platform's number is 16 bits wide at some places and
/// steps faster the longer an arrow is held.
class Win32UpDown final : public Win32Control<platform::UpDown> {
 public:
  Win32UpDown(ControlHost& host, std::string name, HWND parent);

  void SetRange(std::int32_t lowest, std::int32_t highest, std::int32_t step) override;
  [[nodiscard]] std::int32_t Value() const override { return value_; }
  void SetValue(std::int32_t value) override;
  [[nodiscard]] platform::Subscription OnChange(std::function<void()> handler) override {
    return changed_.Subscribe(std::move(handler));
  }

  [[nodiscard]] std::optional<LRESULT> OnNotify(NMHDR& header) override;

 protected:
  [[nodiscard]] SIZE NeededSize() const override;

 private:
  void StepTo(std::int64_t value);

  std::int32_t lowest_ = 0;
  std::int32_t highest_ = 100;
  std::int32_t step_ = 1;
  std::int32_t value_ = 0;
  platform::Signal<> changed_;
};

}  // namespace ferrowind::win32
