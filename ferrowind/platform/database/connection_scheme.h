#pragma once

#include <compare>
#include <optional>
#include <string_view>

#include "ferrowind/platform/values/case_fold.h"

namespace ferrowind::platform {

/// What stands behind `scheme` and its colon at the beginning of `connection_string`, as long as that lives;
/// nothing when it begins with something else. Schemes are the same whatever their letter case.
[[nodiscard]] inline std::optional<std::string_view> BehindScheme(std::string_view connection_string,
                                                                  std::string_view scheme) {
  const auto colon = connection_string.find(':');
  if (colon == std::string_view::npos) return std::nullopt;
  if (std::is_neq(CompareIgnoringCase(connection_string.substr(0, colon), scheme))) return std::nullopt;
  return connection_string.substr(colon + 1);
}

}  // namespace ferrowind::platform
