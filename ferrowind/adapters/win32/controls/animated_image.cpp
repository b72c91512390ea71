#include "ferrowind/adapters/win32/controls/animated_image.h"

#include <algorithm>
#include <vector>

#include "ferrowind/adapters/win32/base/wide_text.h"
#include "ferrowind/adapters/win32/controls/image_library.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::win32 {
namespace {

/// In hundredths of a second; empty where the image says nothing.
std::vector<UINT> DelaysOf(Gdiplus::Image& image) {
  const UINT size = image.GetPropertyItemSize(PropertyTagFrameDelay);
  if (size == 0) return {};
  std::vector<Gdiplus::PropertyItem> room(size / sizeof(Gdiplus::PropertyItem) + 1);
  if (image.GetPropertyItem(PropertyTagFrameDelay, size, room.data()) != Gdiplus::Ok) return {};
  const auto* delays = static_cast<const UINT*>(room.front().value);
  return {delays, delays + room.front().length / sizeof(UINT)};
}

}  // namespace

struct AnimatedImage::Frames {
  explicit Frames(const std::wstring& path) : image(path.c_str()) {}

  ImageLibrary library;
  Gdiplus::Bitmap image;
  UINT count = 0;
  UINT shown = 0;
  std::vector<UINT> delays;
};

AnimatedImage::AnimatedImage(const std::string& path) : frames_(std::make_unique<Frames>(ToWide(path))) {
  if (frames_->image.GetLastStatus() == Gdiplus::Ok)
    frames_->count = frames_->image.GetFrameCount(&Gdiplus::FrameDimensionTime);
  if (frames_->count < 2) {
    throw platform::Failure(platform::failure_number::kInvalidArgument,
                            "There is no animated image in the file " + path);
  }
  frames_->delays = DelaysOf(frames_->image);
}

AnimatedImage::~AnimatedImage() = default;

SIZE AnimatedImage::Size() const {
  return {static_cast<LONG>(frames_->image.GetWidth()), static_cast<LONG>(frames_->image.GetHeight())};
}

UINT AnimatedImage::Milliseconds() const {
  constexpr UINT kUsual = 100;
  constexpr UINT kShortest = 20;
  if (frames_->shown >= frames_->delays.size()) return kUsual;
  constexpr UINT kMillisecondsPerUnit = 10;
  return std::max(kShortest, frames_->delays[frames_->shown] * kMillisecondsPerUnit);
}

void AnimatedImage::Advance() {
  frames_->shown = (frames_->shown + 1) % frames_->count;
  frames_->image.SelectActiveFrame(&Gdiplus::FrameDimensionTime, frames_->shown);
}

void AnimatedImage::Draw(HDC context, POINT place) const {
  Gdiplus::Graphics graphics(context);
  graphics.DrawImage(&frames_->image, static_cast<INT>(place.x), static_cast<INT>(place.y), Size().cx,
                     Size().cy);
}

}  // namespace ferrowind::win32
