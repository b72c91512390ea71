#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "ferrowind/export.h"
#include "ferrowind/platform/database/parameter.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::platform {

/// The failure of a call whose input for that parameter cannot be taken; `problem` goes on where "The
/// parameter X of Y" ends.
[[nodiscard]] FERROWIND_EXPORT Failure RefusedInput(std::int32_t number, const std::string& procedure,
                                                    const ParameterDescription& parameter,
                                                    const std::string& problem);

/// Fails for the first input that the procedure does not take: another number of inputs than it has
/// parameters, a value of another type than declared, a text that is not valid UTF-8. `parameters` has the
/// return value first.
FERROWIND_EXPORT void RefuseWrongInputs(const std::string& procedure,
                                        const std::vector<ParameterDescription>& parameters,
                                        const std::vector<Value>& inputs);

}  // namespace ferrowind::platform
