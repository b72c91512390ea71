#include "ferrowind/almanac/expression_error.h"

#include <utility>

#include "ferrowind/almanac/quotation.h"

namespace ferrowind::almanac {
ExpressionError::ExpressionError(std::string_view text, std::size_t place, std::string expectation)
    : Failure(platform::failure_number::kInvalidArgument, Quotation(text) + " is no date expression: at " +
                                                              std::to_string(place) + ", " + expectation +
                                                              " is expected"),
      place_(place),
      expectation_(std::move(expectation)) {}

}  // namespace ferrowind::almanac
