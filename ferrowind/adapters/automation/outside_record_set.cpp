#include "ferrowind/adapters/automation/outside_record_set.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "ferrowind/adapters/automation/variant_value.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"
#include "ferrowind/platform/values/value.h"

namespace ferrowind::automation {
namespace {

using platform::Value;

constexpr std::size_t kMostRows = 100'000;
constexpr std::int32_t kMostFields = 1'000;

std::vector<OwnedVariant> At(std::int32_t position) {
  std::vector<OwnedVariant> arguments;
  arguments.push_back(VariantOf(position));
  return arguments;
}

Value ValueIn(const OutsideCall& object, const char* member) { return ValueOf(object.Call(member).Get()); }

/// The fields of the row that the set stands on, whichever that is.
std::vector<OutsideCall> FieldsOf(const OutsideCall& records) {
  const OutsideCall all = records.ObjectOf("Fields");
  const std::int32_t count = platform::ToInt32(ValueIn(all, "Count"));
  if (count < 0 || count > kMostFields) throw platform::InvalidArgument();
  std::vector<OutsideCall> fields;
  for (std::int32_t i = 0; i < count; ++i) fields.push_back(all.ObjectOf("Item", At(i)));
  return fields;
}

bool IsAtEnd(const OutsideCall& records) {
  const Value at_end = ValueIn(records, "EOF");
  const auto* const is_at_end = at_end.If<bool>();
  return is_at_end != nullptr ? *is_at_end : platform::ToInt32(at_end) != 0;
}

}  // namespace

std::shared_ptr<platform::RecordSet> CopyOfRecordSet(const OutsideCall& records) {
  const std::vector<OutsideCall> fields = FieldsOf(records);
  auto rows = std::make_shared<platform::RecordRows>();
  for (const auto& field : fields) rows->fields.push_back(platform::ToText(ValueIn(field, "Name")));
  for (; !IsAtEnd(records); static_cast<void>(records.Call("MoveNext"))) {
    if (rows->row_count == kMostRows) {
      throw platform::Failure(platform::failure_number::kOverflow, "The record set does not end");
    }
    for (const auto& field : fields) rows->cells.push_back(ValueIn(field, "Value"));
    ++rows->row_count;
  }
  return std::make_shared<platform::RecordSet>(std::move(rows));
}

}  // namespace ferrowind::automation
