#include "ferrowind/almanac/expression_error.h"

#include <string>
#include <utility>

#include "ferrowind/almanac/quotation.h"

namespace ferrowind::almanac {
namespace {

using platform::Phrase;

Phrase SentenceOf(std::string_view text, std::size_t place, const Phrase& expectation) {
  return Phrase::Of("%1 is no date expression: at %2, %3 is expected",
                    {Quotation(text), std::to_string(place), expectation});
}

}  // namespace

ExpressionError::ExpressionError(std::string_view text, std::size_t place, Phrase expectation)
    : Failure(platform::failure_number::kInvalidArgument, SentenceOf(text, place, expectation).InEnglish()),
      place_(place),
      expectation_(std::move(expectation)),
      sentence_(SentenceOf(text, place, expectation_)) {}

}  // namespace ferrowind::almanac
