#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "ferrowind/export.h"
#include "ferrowind/platform/values/value.h"

namespace ferrowind::platform {

/// A colour of the sRGB space.
struct FERROWIND_EXPORT Color {
  ///@{
  /// 0 to 255.
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  ///@}
  /// The same colour.
  friend bool operator==(const Color&, const Color&) = default;
};

/// The operator code of a conditional format that applies where the cell equals the compared value.
inline constexpr std::int32_t kFormatEqual = 0;

/// A conditional format: how a whole row looks when the row's cell of one column compares as said.
///
/// The cell is compared as it is shown where the column has a value list, and by its value otherwise. Of
/// several formats that apply, the one added first decides each attribute that it sets.
struct FERROWIND_EXPORT GridFormat {
  /// What the format is replaced by, see `Grid::AddFormat`.
  std::string key;
  /// The column whose cell decides.
  std::string column_key;
  /// Anything but `kFormatEqual` is the failure Invalid argument of `Grid::AddFormat`.
  std::int32_t comparison = kFormatEqual;
  /// What the cell is compared with.
  Value compared;
  ///@{
  /// Unset attributes are left as the row has them.
  std::optional<Color> fore_color = std::nullopt;
  std::optional<bool> bold = std::nullopt;
  std::optional<bool> strike_through = std::nullopt;
  ///@}
};

}  // namespace ferrowind::platform
