#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "ferrowind/planning/in_words.h"

namespace ferrowind::planning {

/// "a, b and c"; empty without any.
[[nodiscard]] inline std::string InOneList(const std::vector<std::string>& items) {
  std::string list;
  for (std::size_t i = 0; i < items.size(); ++i) {
    const bool is_last = i + 1 == items.size();
    list = i == 0 ? items[i] : InWords(is_last ? "%1 and %2" : "%1, %2", {list, items[i]});
  }
  return list;
}

}  // namespace ferrowind::planning
