#include "ferrowind/platform/database/parameters_json.h"

#include <cstddef>

#include "ferrowind/platform/database/json_object.h"

namespace ferrowind::platform {

std::string ParametersAsJson(const std::vector<ParameterDescription>& parameters,
                             const std::vector<Value>& inputs) {
  JsonObject json;
  for (const auto& parameter : parameters) {
    if (parameter.direction != ParameterDirection::kInput) continue;
    json.Add(std::string_view(parameter.name).substr(1),
             inputs.at(static_cast<std::size_t>(parameter.position) - 1));
  }
  return json.Text();
}

}  // namespace ferrowind::platform
