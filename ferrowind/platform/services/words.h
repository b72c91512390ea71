#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "ferrowind/export.h"

namespace ferrowind::platform {

/// The component's own texts in the operator's language.
class FERROWIND_EXPORT Words {
 public:
  virtual ~Words() = default;
  /// What stands for an English text, with its placeholders in it, or nothing where it is not translated.
  /// Where a `number` decides on the form of the text, its placeholder is "%n" and `text` is the English
  /// plural; the answer is the form for that number and has the number in place of "%n".
  [[nodiscard]] virtual std::optional<std::string> Translate(const std::string& text,
                                                             std::optional<std::int64_t> number) const = 0;
};

}  // namespace ferrowind::platform
