#pragma once

#include <cstdint>

namespace ferrowind {

/// The style of a message that only informs, and of one that reports an error.
inline constexpr std::int32_t kInformationStyle = 1;
inline constexpr std::int32_t kErrorStyle = 3;

/// Reports all that is pending and then the numbered message `index` (error_table.h) to the operator; returns
/// once they are answered. An index outside the table is the failure Subscript out of range, after the
/// pending failures were reported. Failures of the shared services object reach the caller.
void ShowErrorMessage(const std::int32_t& index);

/// Reports the pending failure of the gateway and the current runtime failure, each with its own number and
/// text, and clears them; does nothing when there is none. Failures of the shared services object reach the
/// caller.
void ShowPendingFailures();

}  // namespace ferrowind
