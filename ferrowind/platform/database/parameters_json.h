#pragma once

#include <string>
#include <vector>

#include "ferrowind/export.h"
#include "ferrowind/platform/database/parameter.h"
#include "ferrowind/platform/values/value.h"

namespace ferrowind::platform {

/// The inputs of a call as a JSON object, `{"ID1" : 978, "ODate" : "2026-12-25", "Comment" : null}`: every
/// input of `parameters`, in their order and without the leading "@"; dates as YYYY-MM-DD, empty as null. The
/// blanks and escapes are those that a server's procedures write, so that histories of all engines read
/// alike.
///
/// `inputs` holds a value for each input, by position, of the declared type or empty.
[[nodiscard]] FERROWIND_EXPORT std::string ParametersAsJson(
    const std::vector<ParameterDescription>& parameters, const std::vector<Value>& inputs);

}  // namespace ferrowind::platform
