#include "ferrowind/adapters/headless/procedure_script.h"

#include <utility>

namespace ferrowind::headless {

ProcedureScript& ProcedureScript::Takes(const std::string& name, platform::ParameterType type) {
  parameters_.push_back(
      {name, static_cast<std::int32_t>(parameters_.size()), type, platform::ParameterDirection::kInput});
  return *this;
}

ProcedureScript& ProcedureScript::Returns(const platform::Value& value) {
  return_value_ = value;
  return *this;
}

ProcedureScript& ProcedureScript::Gives(std::shared_ptr<platform::RecordSet> records) {
  record_sets_.push_back(std::move(records));
  return *this;
}

ProcedureScript& ProcedureScript::Gives(std::vector<std::string> fields,
                                        std::vector<std::vector<platform::Value>> rows) {
  return Gives(std::make_shared<platform::RecordSet>(std::move(fields), std::move(rows)));
}

ProcedureScript& ProcedureScript::Closed() {
  is_closed_ = true;
  return *this;
}

}  // namespace ferrowind::headless
