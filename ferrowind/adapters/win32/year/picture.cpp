#include "ferrowind/adapters/win32/year/picture.h"

#include <cstring>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::win32 {
namespace {

constexpr std::size_t kBytesPerPixel = 3;

/// Lines begin at whole words.
std::size_t BytesPerLine(const SIZE& size) {
  constexpr std::size_t kWord = 4;
  return (static_cast<std::size_t>(size.cx) * kBytesPerPixel + kWord - 1) / kWord * kWord;
}

}  // namespace

Picture::Picture(const SIZE& size) : size_(size), context_(CreateCompatibleDC(nullptr)) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = size.cx;
  // From the top down.
  info.bmiHeader.biHeight = -size.cy;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 8 * kBytesPerPixel;
  info.bmiHeader.biCompression = BI_RGB;
  void* pixels = nullptr;
  bitmap_.reset(CreateDIBSection(context_.get(), &info, DIB_RGB_COLORS, &pixels, nullptr, 0));
  if (context_ == nullptr || bitmap_ == nullptr)
    throw platform::Failure(platform::failure_number::kInvalidArgument, "There is no memory for the picture");
  pixels_ = static_cast<std::uint8_t*>(pixels);
  std::memset(pixels_, 0xff, BytesPerLine(size_) * static_cast<std::size_t>(size_.cy));
  SelectObject(context_.get(), bitmap_.get());
}

std::span<const std::uint8_t> Picture::Line(LONG line) const {
  GdiFlush();
  return {pixels_ + static_cast<std::size_t>(line) * BytesPerLine(size_),
          static_cast<std::size_t>(size_.cx) * kBytesPerPixel};
}

}  // namespace ferrowind::win32
