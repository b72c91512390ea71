#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "ferrowind/data/module_state.h"
#include "ferrowind/data/said.h"
#include "ferrowind/platform/values/phrase.h"

/// What planning says to people, in the language of whoever is asking (said.h).
namespace ferrowind::planning {

[[nodiscard]] inline std::string InWords(const platform::Phrase& phrase) {
  return Said(AttachedPlatform(), phrase);
}

[[nodiscard]] inline std::string InWords(const std::string& text,
                                         const std::vector<std::string>& arguments = {}) {
  return Said(AttachedPlatform(), text, arguments);
}

[[nodiscard]] inline std::string InWords(std::size_t number, const std::string& one, const std::string& many,
                                         const std::vector<std::string>& arguments = {}) {
  return SaidOfNumber(AttachedPlatform(), static_cast<std::int64_t>(number), one, many, arguments);
}

}  // namespace ferrowind::planning
