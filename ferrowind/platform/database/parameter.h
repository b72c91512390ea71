#pragma once

#include <cstdint>
#include <string>

#include "ferrowind/export.h"
#include "ferrowind/platform/values/value.h"

namespace ferrowind::platform {

/// The types that procedures declare for their parameters.
enum class FERROWIND_EXPORT ParameterType { kInt16, kInt32, kText, kDate };

/// Whether a parameter is given to the procedure or is what it returns.
enum class FERROWIND_EXPORT ParameterDirection { kInput, kReturnValue };

/// A parameter as the database declares it.
struct FERROWIND_EXPORT ParameterDescription {
  /// With its leading "@", in the database's own spelling; the return value is "@RETURN_VALUE".
  std::string name;
  /// 0 for the return value; the inputs count from 1.
  std::int32_t position = 0;
  /// What its value is converted to before the call.
  ParameterType type = ParameterType::kInt32;
  /// One of a procedure's parameters is its return value.
  ParameterDirection direction = ParameterDirection::kInput;
};

/// `value` as the type that the parameter declares; empty stays empty. A value that does not fit is the
/// failure of the conversion, with a description that names the parameter.
[[nodiscard]] FERROWIND_EXPORT Value ConvertForParameter(const ParameterDescription& parameter,
                                                         const Value& value);

/// "int16", "int32", "text" or "date", as catalogues and messages write a type.
[[nodiscard]] FERROWIND_EXPORT const char* NameOf(ParameterType type);

}  // namespace ferrowind::platform
