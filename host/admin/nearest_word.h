#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ferrowind::host {

/// The one of `words` that somebody who wrote `written` most likely meant: by the fewest letters left out,
/// added, exchanged or swapped with their neighbours. Nothing when that would take more than two, or as many
/// as the word has letters.
[[nodiscard]] std::optional<std::string> NearestWord(std::string_view written,
                                                     const std::vector<std::string>& words);

}  // namespace ferrowind::host
