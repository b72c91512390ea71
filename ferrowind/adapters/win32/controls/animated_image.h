#pragma once

#include <memory>
#include <string>

#include "ferrowind/adapters/win32/base/windows_api.h"

namespace ferrowind::win32 {

/// The frames of an animated image in a file.
class AnimatedImage {
 public:
  /// A file that is missing or no image of several frames is a failure that names it. `path` is UTF-8.
  explicit AnimatedImage(const std::string& path);
  ~AnimatedImage();
  AnimatedImage(const AnimatedImage&) = delete;
  AnimatedImage& operator=(const AnimatedImage&) = delete;

  [[nodiscard]] SIZE Size() const;
  /// How long the frame of now is to be shown.
  [[nodiscard]] UINT Milliseconds() const;
  /// Goes to the next frame, from the last one to the first.
  void Advance();
  void Draw(HDC context, POINT place) const;

 private:
  struct Frames;
  std::unique_ptr<Frames> frames_;
};

}  // namespace ferrowind::win32
