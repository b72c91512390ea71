#pragma once

#include <string>
#include <vector>

namespace ferrowind::host {

/// The texts of the database at `url` that are longer than what can be stored now, a sentence without a full
/// stop for each. The engine of `url` must exist. Fails as the engines' checks do.
[[nodiscard]] std::vector<std::string> LongTextsIn(const std::string& url);

}  // namespace ferrowind::host
