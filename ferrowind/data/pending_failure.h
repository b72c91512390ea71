#pragma once

#include <cstdint>
#include <string>

namespace ferrowind {

/// Keeps a failure of the gateway for the next error report of this thread; a number of 0 keeps nothing.
///
/// When even the recording fails, the record gets the number 666 and then the text "Unknown error" in place
/// of that number, which fails with Type mismatch; the description keeps its old text. This is intended.
void SetPendingFailure(std::int32_t number, const std::string& description);

}  // namespace ferrowind
