#pragma once

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ferrowind/platform/values/value.h"

namespace ferrowind::headless {

/// A value of a JSON text.
struct JsonValue {
  enum class Kind { kNull, kTruth, kNumber, kText, kList, kObject };

  Kind kind = Kind::kNull;
  /// Of a text what it says; of a number and a truth value how it is written.
  std::string text;
  /// Of a list and, beside their names, of an object, which may have a name twice.
  std::vector<JsonValue> items;
  std::vector<std::string> names;
};

/// Reads JSON (RFC 8259). Nothing when `text` is something else, is nested more than 100 deep, or has a text
/// with the character NUL or with half a surrogate pair in it, which databases do not keep.
[[nodiscard]] std::optional<JsonValue> ReadJson(std::string_view text);

/// The members of an object whose names are known.
class JsonMembers {
 public:
  /// `object` must outlive this.
  JsonMembers(const JsonValue& object, std::initializer_list<std::string_view> known_names);

  /// Whether it is an object, and its members have known names, each once.
  [[nodiscard]] bool AreWellFormed() const { return are_well_formed_; }
  /// Null when there is no such member.
  [[nodiscard]] const JsonValue* Find(std::string_view name) const;
  /// An empty value when there is no such member or it is null; nothing when it is something else than a
  /// text.
  [[nodiscard]] std::optional<platform::Value> TextOrNothing(std::string_view name) const;
  /// The number of a type of rules, 1 to 4; nothing when it is something else.
  [[nodiscard]] std::optional<std::int32_t> RuleType(std::string_view name) const;

 private:
  const JsonValue& object_;
  bool are_well_formed_;
};

}  // namespace ferrowind::headless
