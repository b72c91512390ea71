#pragma once

#include <cstdint>

namespace ferrowind {

/// The number of every failure that the public interface raises itself: 0x80040258, the component's error
/// base 0x80040000 plus 600, as a signed number.
inline constexpr std::int32_t kComponentError = -2147220904;

}  // namespace ferrowind
