#pragma once

#include <vector>

#include "ferrowind/almanac/book_faults.h"

namespace ferrowind::host {

/// The rule books that this program carries, each under the code of its currency, in the order in which they
/// are delivered.
[[nodiscard]] std::vector<almanac::NamedBook> DeliveredBooks();

}  // namespace ferrowind::host
