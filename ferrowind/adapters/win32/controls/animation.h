#pragma once

#include <memory>
#include <string>

#include "ferrowind/adapters/win32/controls/animated_image.h"
#include "ferrowind/adapters/win32/controls/control_window.h"
#include "ferrowind/platform/toolkit/animation.h"

namespace ferrowind::win32 {

class Win32Animation final : public Win32Control<platform::Animation> {
 public:
  Win32Animation(ControlHost& host, std::string name, HWND parent);

  void Open(const std::string& path) override;
  void Play() override;
  void Stop() override;

 protected:
  LRESULT OnMessage(UINT message, WPARAM w_param, LPARAM l_param) override;
  [[nodiscard]] SIZE NeededSize() const override;

 private:
  std::unique_ptr<AnimatedImage> image_;
  bool is_playing_ = false;
};

}  // namespace ferrowind::win32
