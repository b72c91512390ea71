#include "ferrowind/almanac/text_error.h"

namespace ferrowind::almanac {

TextError::TextError(std::size_t line, std::size_t place, const std::string& reason)
    : Failure(platform::failure_number::kInvalidArgument,
              "Line " + std::to_string(line) + ", at " + std::to_string(place) + ": " + reason),
      line_(line),
      place_(place) {}

}  // namespace ferrowind::almanac
