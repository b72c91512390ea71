#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace ferrowind::postgres {

/// The parts of a list such as "a,b,c", as settings of a connection string name several hosts; one, which may
/// be empty, where there is no comma.
[[nodiscard]] inline std::vector<std::string_view> PartsOf(std::string_view list) {
  std::vector<std::string_view> parts;
  for (std::size_t comma = list.find(','); comma != std::string_view::npos; comma = list.find(',')) {
    parts.push_back(list.substr(0, comma));
    list.remove_prefix(comma + 1);
  }
  parts.push_back(list);
  return parts;
}

}  // namespace ferrowind::postgres
