#pragma once

#include <cstdint>
#include <span>

#include "ferrowind/adapters/win32/base/handles.h"

namespace ferrowind::win32 {

/// A picture in memory to paint on, white at first.
class Picture {
 public:
  /// Failure when there is no memory for it.
  explicit Picture(const SIZE& size);

  [[nodiscard]] HDC Context() const { return context_.get(); }
  [[nodiscard]] HBITMAP Bitmap() const { return bitmap_.get(); }
  [[nodiscard]] const SIZE& Size() const { return size_; }
  /// The pixels of a line from the top: blue, green and red of each, one byte each.
  [[nodiscard]] std::span<const std::uint8_t> Line(LONG line) const;

 private:
  SIZE size_;
  UniqueBitmap bitmap_;
  /// Goes before the bitmap, which is selected in it.
  UniqueMemoryContext context_;
  std::uint8_t* pixels_ = nullptr;
};

}  // namespace ferrowind::win32
