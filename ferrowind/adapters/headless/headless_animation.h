#pragma once

#include <set>
#include <string>
#include <utility>

#include "ferrowind/adapters/headless/headless_control.h"
#include "ferrowind/platform/toolkit/animation.h"

namespace ferrowind::headless {

class HeadlessAnimation : public HeadlessControl<platform::Animation> {
 public:
  /// `files` are the paths that there is an animated image under; must outlive the animation.
  HeadlessAnimation(ControlHost& host, std::string name, const std::set<std::string>& files)
      : HeadlessControl(host, std::move(name)), files_(files) {}

  void Open(const std::string& path) override;
  void Play() override;
  void Stop() override;

  [[nodiscard]] bool IsPlaying() const { return is_playing_; }

 private:
  const std::set<std::string>& files_;
  bool is_open_ = false;
  bool is_playing_ = false;
};

}  // namespace ferrowind::headless
