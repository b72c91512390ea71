#pragma once

#include <stdexcept>
#include <string>
#include <vector>

#include "ferrowind/data/source_values.h"
#include "ferrowind/platform/database/parameter.h"

namespace ferrowind::host {

/// An argument that the procedure does not take; the text names it.
class ArgumentError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The parameters that arguments of the form NAME=VALUE give, each of the type that the procedure declares.
///
/// NAME is found with or without a leading "@" and without regard to case. What stands behind the first "="
/// is the value: UTF-8 text as it is (nothing behind the "=" is an empty text), a whole number, or a date
/// YYYY-MM-DD. A NAME without "=" gives the parameter no value. An unknown name, one given twice, and a value
/// that does not fit are an `ArgumentError`.
[[nodiscard]] SourceValues ReadArguments(const std::vector<std::string>& arguments,
                                         const std::vector<platform::ParameterDescription>& parameters);

}  // namespace ferrowind::host
