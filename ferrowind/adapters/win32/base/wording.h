#pragma once

#include <string>

#include "ferrowind/platform/services/words.h"

namespace ferrowind::win32 {

/// The texts of this adapter itself in the operator's language.
class Wording {
 public:
  /// Null for English; outlives this.
  explicit Wording(const platform::Words* words) : words_(words) {}

  /// An English text in the operator's language, its places "%1" and "%2" filled.
  [[nodiscard]] std::wstring Translated(const char* english, const std::wstring& first = {},
                                        const std::wstring& second = {}) const;

 private:
  const platform::Words* words_;
};

}  // namespace ferrowind::win32
