#pragma once

#include "ferrowind/export.h"
#include "ferrowind/platform/services/words.h"

namespace ferrowind::qt {

/// The texts of the context "ferrowind" of the translators that the application has installed.
class FERROWIND_EXPORT QtWords : public platform::Words {
 public:
  [[nodiscard]] std::optional<std::string> Translate(const std::string& text,
                                                     std::optional<std::int64_t> number) const override;
};

}  // namespace ferrowind::qt
