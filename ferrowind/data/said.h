#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "ferrowind/platform/platform.h"
#include "ferrowind/platform/toolkit/form_design.h"
#include "ferrowind/platform/toolkit/tool_bar.h"
#include "ferrowind/platform/values/phrase.h"

namespace ferrowind {

/// A phrase as the operator reads it: translated where the host brings words (`Platform::words`).
[[nodiscard]] std::string Said(const platform::Platform& platform, const platform::Phrase& phrase);

/// An English text as the operator reads it, with the arguments as they stand in the places of `Phrase::Of`.
[[nodiscard]] std::string Said(const platform::Platform& platform, const std::string& text,
                               const std::vector<std::string>& arguments = {});

/// The same for a text that tells a number in place of "%n": `one` in English for 1, else `many`.
[[nodiscard]] std::string SaidOfNumber(const platform::Platform& platform, std::int64_t number,
                                       const std::string& one, const std::string& many,
                                       const std::vector<std::string>& arguments = {});

/// The design with its caption and the texts of its controls translated.
[[nodiscard]] platform::FormDesign Said(const platform::Platform& platform, platform::FormDesign design);
/// The tool with its caption and its description translated.
[[nodiscard]] platform::ToolDesign Said(const platform::Platform& platform, platform::ToolDesign tool);

}  // namespace ferrowind
