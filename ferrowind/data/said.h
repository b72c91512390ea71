#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "ferrowind/platform/platform.h"
#include "ferrowind/platform/toolkit/form_design.h"
#include "ferrowind/platform/toolkit/tool_bar.h"

namespace ferrowind {

/// An English text as the operator reads it: translated where the host brings words (`Platform::words`), with
/// "%1" to "%9" replaced by the arguments. A placeholder without an argument stays; what stands in an
/// argument is never taken for a placeholder.
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
