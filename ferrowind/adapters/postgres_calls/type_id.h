#pragma once

#include <cstdint>

/// The numbers that servers have for the types which cross into values.
namespace ferrowind::postgres::type_id {

inline constexpr std::uint32_t kInt8 = 20;
inline constexpr std::uint32_t kInt2 = 21;
inline constexpr std::uint32_t kInt4 = 23;
inline constexpr std::uint32_t kText = 25;
inline constexpr std::uint32_t kName = 19;
inline constexpr std::uint32_t kVarchar = 1043;
inline constexpr std::uint32_t kDate = 1082;
inline constexpr std::uint32_t kRefCursor = 1790;

}  // namespace ferrowind::postgres::type_id
