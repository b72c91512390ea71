#include "ferrowind/data/record_set_in.h"

namespace ferrowind {

std::shared_ptr<platform::RecordSet> RecordSetIn(const std::shared_ptr<SourceValues>& results,
                                                 const std::string& name) {
  const auto cell = results ? results->Values(name) : nullptr;
  const auto* object = cell ? cell->Value.If<platform::Value::Object>() : nullptr;
  return object == nullptr ? nullptr : *object;
}

}  // namespace ferrowind
