#pragma once

#include <cstdint>
#include <string>

namespace ferrowind {

/// What stands in the title of a message that has none of its own.
inline constexpr const char* kComponentTitle = "Ferrowind";
/// The settings path under which the component's sections lie.
inline constexpr const char* kComponentSettings = "\\Tessaro";
/// `platform::SharedServices::ShowMessage`'s style of an error.
inline constexpr std::int32_t kErrorMessage = 3;
/// What its only button is answered as.
inline constexpr std::int32_t kOkPressed = 1;

/// A failure as operators are told it, with its number as they know it from manuals: in decimal, and in
/// hexadecimal as well where it is a code of many digits.
[[nodiscard]] std::string FailureReport(std::int32_t number, const std::string& description);

}  // namespace ferrowind
