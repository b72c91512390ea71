#include "host/admin/nearest_word.h"

#include <algorithm>
#include <cstddef>

namespace ferrowind::host {
namespace {

/// How many letters are to be left out, added, exchanged, or swapped with their neighbours.
std::size_t SlipsBetween(std::string_view left, std::string_view right) {
  // Of the beginnings of `left` and `right` of these lengths.
  std::vector<std::vector<std::size_t>> slips(left.size() + 1, std::vector<std::size_t>(right.size() + 1));
  for (std::size_t i = 0; i <= left.size(); ++i) {
    for (std::size_t j = 0; j <= right.size(); ++j) {
      if (i == 0 || j == 0) {
        slips[i][j] = i + j;
        continue;
      }
      const std::size_t exchanged = left[i - 1] == right[j - 1] ? 0 : 1;
      slips[i][j] = std::min({slips[i - 1][j] + 1, slips[i][j - 1] + 1, slips[i - 1][j - 1] + exchanged});
      if (i > 1 && j > 1 && left[i - 1] == right[j - 2] && left[i - 2] == right[j - 1]) {
        slips[i][j] = std::min(slips[i][j], slips[i - 2][j - 2] + 1);
      }
    }
  }
  return slips[left.size()][right.size()];
}

}  // namespace

std::optional<std::string> NearestWord(std::string_view written, const std::vector<std::string>& words) {
  constexpr std::size_t kMostSlips = 2;
  std::size_t fewest = kMostSlips + 1;
  std::optional<std::string> nearest;
  for (const std::string& word : words) {
    const std::size_t slips = SlipsBetween(written, word);
    if (slips < fewest && slips < word.size()) {
      fewest = slips;
      nearest = word;
    }
  }
  return nearest;
}

}  // namespace ferrowind::host
