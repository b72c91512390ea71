#pragma once

#include <string>
#include <vector>

#include "ferrowind/planning/currency_list.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind {

/// What is wrong about a text that an operator has typed, unlike the failure of a database that was asked
/// about it.
class TypingError : public platform::Failure {
 public:
  explicit TypingError(const std::string& description)
      : Failure(platform::failure_number::kInvalidArgument, description) {}
};

/// The currencies that an operator means by codes or numbers with blanks, commas or semicolons between them,
/// each once, in that order; "ALL" stands for all that have a calendar in `year`. A `TypingError` when one is
/// unknown or no money, or when there is none. Fails as database_call.h says, too.
[[nodiscard]] std::vector<planning::Currency> TypedCurrencies(const std::string& text, int year);

/// The year that is typed; a `TypingError` that names the text when calendars cannot have it.
[[nodiscard]] int TypedYear(const std::string& text);

}  // namespace ferrowind
