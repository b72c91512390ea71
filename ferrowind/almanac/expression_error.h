#pragma once

#include <cstddef>
#include <string_view>

#include "ferrowind/platform/values/failure.h"
#include "ferrowind/platform/values/phrase.h"

namespace ferrowind::almanac {

/// The failure of a text that is no date expression, for people:
/// `"12-32" is no date expression: at 4, a day of the month is expected`.
class ExpressionError : public platform::Failure {
 public:
  ExpressionError(std::string_view text, std::size_t place, platform::Phrase expectation);

  /// The byte of the text where it goes wrong, from 1 on; one more than the text has when it ends too early.
  [[nodiscard]] std::size_t Place() const noexcept { return place_; }
  /// What should stand there, such as "a day of the month".
  [[nodiscard]] const platform::Phrase& Expectation() const noexcept { return expectation_; }
  /// The whole sentence, which the description is in English.
  [[nodiscard]] const platform::Phrase& Sentence() const noexcept { return sentence_; }

 private:
  std::size_t place_;
  platform::Phrase expectation_;
  platform::Phrase sentence_;
};

}  // namespace ferrowind::almanac
