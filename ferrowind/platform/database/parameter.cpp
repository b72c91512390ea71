#include "ferrowind/platform/database/parameter.h"

#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::platform {

Value ConvertForParameter(const ParameterDescription& parameter, const Value& value) {
  if (value.IsEmpty()) return {};
  try {
    switch (parameter.type) {
      case ParameterType::kInt16:
        return ToInt16(value);
      case ParameterType::kInt32:
        return ToInt32(value);
      case ParameterType::kText:
        return ToText(value);
      case ParameterType::kDate:
        return ToDate(value);
    }
  } catch (const Failure& failure) {
    throw Failure(failure.Number(), failure.Description() + ": the parameter " + parameter.name + " takes " +
                                        NameOf(parameter.type));
  }
  throw TypeMismatch();
}

const char* NameOf(ParameterType type) {
  switch (type) {
    case ParameterType::kInt16:
      return "int16";
    case ParameterType::kInt32:
      return "int32";
    case ParameterType::kText:
      return "text";
    case ParameterType::kDate:
      return "date";
  }
  return "unknown";
}

}  // namespace ferrowind::platform
