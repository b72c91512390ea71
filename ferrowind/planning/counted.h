#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace ferrowind::planning {

/// "1 day", "2 days"; `many` is what more than one, or none, are called.
[[nodiscard]] inline std::string Counted(std::size_t count, std::string_view one, std::string_view many) {
  return std::to_string(count) + " " + std::string(count == 1 ? one : many);
}

}  // namespace ferrowind::planning
