#pragma once

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string_view>

#include "ferrowind/platform/values/json_value.h"
#include "ferrowind/platform/values/value.h"

namespace ferrowind::headless {

/// The members of an object whose names are known.
class JsonMembers {
 public:
  /// `object` must outlive this.
  JsonMembers(const platform::JsonValue& object, std::initializer_list<std::string_view> known_names);

  /// Whether it is an object, and its members have known names, each once.
  [[nodiscard]] bool AreWellFormed() const { return are_well_formed_; }
  /// Null when there is no such member.
  [[nodiscard]] const platform::JsonValue* Find(std::string_view name) const { return object_.Find(name); }
  /// An empty value when there is no such member or it is null; nothing when it is something else than a
  /// text.
  [[nodiscard]] std::optional<platform::Value> TextOrNothing(std::string_view name) const;
  /// The number of a type of rules, 1 to 4; nothing when it is something else.
  [[nodiscard]] std::optional<std::int32_t> RuleType(std::string_view name) const;

 private:
  const platform::JsonValue& object_;
  bool are_well_formed_;
};

}  // namespace ferrowind::headless
