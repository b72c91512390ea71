#pragma once

#include <string>

#include "ferrowind/platform/values/value.h"

namespace ferrowind {

/// A setting's value as the text that is stored. Text stands as it is; a value of another type is its text
/// with the type in front ("Single:1200.5", "Date:2026-07-04"), so that it comes back as what it was, and
/// text that happens to begin like that gets "Text:" in front. An object is the failure Type mismatch.
[[nodiscard]] std::string SettingText(const platform::Value& value);
/// Reads it back. What does not fit the type in front of it is text, as a text written by hand is.
[[nodiscard]] platform::Value SettingValue(const std::string& text);

}  // namespace ferrowind
