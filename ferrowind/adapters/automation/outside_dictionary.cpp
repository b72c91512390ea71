#include "ferrowind/adapters/automation/outside_dictionary.h"

#include <utility>
#include <vector>

#include "ferrowind/adapters/automation/outside_record_set.h"
#include "ferrowind/adapters/automation/variant_value.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/value.h"

namespace ferrowind::automation {

OutsideDictionary::OutsideDictionary(OutsideCall object) : object_(*new OutsideCall(std::move(object))) {}

std::string OutsideDictionary::dic_ConnectionString() {
  return platform::ToText(ValueOf(object_.Call("dic_ConnectionString").Get()));
}

std::shared_ptr<platform::RecordSet> OutsideDictionary::dic_GetDicRecByFilter(const std::string& name,
                                                                              const std::string& filter) {
  std::vector<OwnedVariant> arguments;
  arguments.push_back(VariantOf(name));
  arguments.push_back(VariantOf(filter));
  return CopyOfRecordSet(object_.ObjectOf("dic_GetDicRecByFilter", std::move(arguments)));
}

}  // namespace ferrowind::automation
