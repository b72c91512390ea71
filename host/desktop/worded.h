#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "ferrowind/platform/services/words.h"
#include "ferrowind/platform/values/phrase.h"

namespace ferrowind::host {

/// A phrase in the language of `words`, in English where there are none.
[[nodiscard]] inline std::string Worded(const platform::Words* words, const platform::Phrase& phrase) {
  if (words == nullptr) return phrase.InEnglish();
  return phrase.In([words](const std::string& text, const std::optional<std::int64_t>& number) {
    return words->Translate(text, number);
  });
}

}  // namespace ferrowind::host
