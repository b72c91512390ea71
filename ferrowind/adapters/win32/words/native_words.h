#pragma once

#include <string>
#include <vector>

#include "ferrowind/export.h"
#include "ferrowind/platform/services/words.h"

namespace ferrowind::win32 {

/// The languages in which the user wants to be spoken to, as Windows' settings have them; the most wanted
/// comes first ("de-CH", "de", "fr-FR"). Empty where the platform tells none.
[[nodiscard]] FERROWIND_EXPORT std::vector<std::string> LanguagesOfUser();

/// The native windows' own texts in the first of several languages that there is: German, French, Spanish and
/// Japanese beside English, which the texts are written in. The texts that the component was given are
/// English in all languages. No text whose form a number decides on is among them.
class FERROWIND_EXPORT NativeWords final : public platform::Words {
 public:
  explicit NativeWords(const std::vector<std::string>& languages = LanguagesOfUser());

  /// The language that is said, such as "de", or "en".
  [[nodiscard]] const std::string& Language() const { return language_; }
  [[nodiscard]] std::optional<std::string> Translate(const std::string& text,
                                                     std::optional<std::int64_t> number) const override;

 private:
  std::string language_ = "en";
};

}  // namespace ferrowind::win32
