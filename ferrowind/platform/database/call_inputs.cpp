#include "ferrowind/platform/database/call_inputs.h"

#include "ferrowind/platform/values/utf8_validation.h"

namespace ferrowind::platform {

Failure RefusedInput(std::int32_t number, const std::string& procedure, const ParameterDescription& parameter,
                     const std::string& problem) {
  return {number, "The parameter " + parameter.name + " of " + procedure + " " + problem};
}

void RefuseWrongInputs(const std::string& procedure, const std::vector<ParameterDescription>& parameters,
                       const std::vector<Value>& inputs) {
  if (inputs.size() + 1 != parameters.size()) {
    throw Failure(failure_number::kInvalidArgument, procedure + " takes " +
                                                        std::to_string(parameters.size() - 1) +
                                                        " parameters, not " + std::to_string(inputs.size()));
  }
  for (std::size_t i = 0; i < inputs.size(); ++i) {
    const ParameterDescription& parameter = parameters[i + 1];
    if (ConvertForParameter(parameter, inputs[i]) != inputs[i]) {
      throw RefusedInput(failure_number::kTypeMismatch, procedure, parameter,
                         std::string("takes ") + NameOf(parameter.type));
    }
    const auto* const text = inputs[i].If<std::string>();
    if (text != nullptr && !IsWellFormedUtf8(*text)) {
      throw RefusedInput(failure_number::kInvalidArgument, procedure, parameter,
                         "was given a text that is not valid UTF-8");
    }
  }
}

}  // namespace ferrowind::platform
