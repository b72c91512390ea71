#pragma once

#include <QLabel>
#include <QMovie>
#include <memory>

#include "ferrowind/adapters/qt/controls/qt_control.h"
#include "ferrowind/platform/toolkit/animation.h"

namespace ferrowind::qt {

/// Fits the image into the label, whose size stays as laid out, smoothly at any resolution of the screen.
///
/// The first frame is on the screen when `Play` returns. The further ones come from the event loop: work that
/// does not return to it leaves the image standing, since handling events in the midst of such work would let
/// the operator's input in.
class QtAnimation : public QtControl<platform::Animation> {
 public:
  explicit QtAnimation(QLabel& label);
  ~QtAnimation() override;

  /// A backslash in the path separates folders where there is no file of that very name.
  void Open(const std::string& path) override;
  void Play() override;
  void Stop() override;

 private:
  void ShowFrame();

  QLabel& label_;
  std::unique_ptr<QMovie> movie_;
};

}  // namespace ferrowind::qt
