#include "ferrowind/adapters/headless/memory_json.h"

#include <algorithm>
#include <set>
#include <string>

namespace ferrowind::headless {

using platform::JsonValue;

JsonMembers::JsonMembers(const JsonValue& object, std::initializer_list<std::string_view> known_names)
    : object_(object), are_well_formed_(object.kind == JsonValue::Kind::kObject) {
  std::set<std::string_view> seen;
  for (const std::string& name : object.names) {
    const bool is_known = std::find(known_names.begin(), known_names.end(), name) != known_names.end();
    are_well_formed_ = are_well_formed_ && is_known && seen.insert(name).second;
  }
}

std::optional<platform::Value> JsonMembers::TextOrNothing(std::string_view name) const {
  const JsonValue* const value = object_.Find(name);
  if (value == nullptr || value->kind == JsonValue::Kind::kNull) return platform::Value();
  if (value->kind != JsonValue::Kind::kText) return std::nullopt;
  return value->text;
}

std::optional<std::int32_t> JsonMembers::RuleType(std::string_view name) const {
  const JsonValue* const value = object_.Find(name);
  if (value == nullptr || value->kind != JsonValue::Kind::kNumber || value->text.size() != 1)
    return std::nullopt;
  const std::int32_t type = value->text.front() - '0';
  if (type < 1 || type > 4) return std::nullopt;
  return type;
}

}  // namespace ferrowind::headless
