#pragma once

#include <cstddef>
#include <memory>

#include "ferrowind/platform/values/record_set.h"

namespace ferrowind::bench {

/// The columns of `DealRows`, by which the grid benchmarks sort and group.
inline constexpr int kDealColumns = 12;
inline constexpr int kDealDate = 1;
inline constexpr int kDealDesk = 2;
inline constexpr int kDealCurrency = 3;
inline constexpr int kDealClient = 4;
inline constexpr int kDealAmount = 5;

/// Rows of a back office: twelve fields of all types, the texts repeating as names of clients, desks and
/// currencies do.
[[nodiscard]] std::shared_ptr<platform::RecordSet> DealRows(std::size_t count);

}  // namespace ferrowind::bench
