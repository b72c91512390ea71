#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "ferrowind/export.h"

namespace ferrowind::platform {

/// What the component says to people, kept apart from the language in which it is said: an English text with
/// places for names, dates and other phrases. Whoever knows the reader words it.
class FERROWIND_EXPORT Phrase {
 public:
  /// What stands for an English text in another language, and for that number, as
  /// `Words::Translate` answers; nothing where it is not translated.
  using Translation = std::function<std::optional<std::string>(const std::string& text,
                                                               const std::optional<std::int64_t>& number)>;

  /// Says nothing.
  Phrase() = default;
  /// A text that is the same in every language: a name, a number, what somebody has written.
  Phrase(std::string name) : text_(std::move(name)) {}  // NOLINT(google-explicit-constructor)

  /// An English text, with "%1" to "%9" where the arguments stand. A place without an argument stays as it
  /// is; what an argument says is never taken for a place.
  [[nodiscard]] static Phrase Of(std::string text, std::vector<Phrase> arguments = {});
  /// An English text whose form depends on a number, which stands at "%n": `one` for 1, else `many`.
  [[nodiscard]] static Phrase OfNumber(std::int64_t number, const std::string& one, std::string many,
                                       std::vector<Phrase> arguments = {});

  /// True when the phrase says nothing.
  [[nodiscard]] bool IsEmpty() const { return text_.empty(); }
  /// In the words that it was made of.
  [[nodiscard]] std::string InEnglish() const;
  /// With each part in the language of `translation`, in English where that has none.
  [[nodiscard]] std::string In(const Translation& translation) const;

 private:
  std::string text_;
  bool is_english_ = false;
  std::vector<Phrase> arguments_;
  std::optional<std::int64_t> number_;
  /// What `text_` is for 1; empty without a number.
  std::string one_;
};

}  // namespace ferrowind::platform
