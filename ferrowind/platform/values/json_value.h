#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ferrowind/export.h"

namespace ferrowind::platform {

/// A value of a JSON text.
struct FERROWIND_EXPORT JsonValue {
  /// What JSON calls null, true and false, number, string, array and object.
  enum class Kind { kNull, kTruth, kNumber, kText, kList, kObject };

  /// Which of the members below count.
  Kind kind = Kind::kNull;
  /// Of a text what it says; of a number and a truth value how it is written.
  std::string text;
  /// Of a list and, beside their names, of an object, which may have a name twice.
  std::vector<JsonValue> items;
  /// Of an object, as many as `items`.
  std::vector<std::string> names;
  /// Where it begins in the text that it was read from, in bytes from 0 on.
  std::size_t place = 0;

  /// The first member of that name; null when there is none, or this is no object.
  [[nodiscard]] const JsonValue* Find(std::string_view name) const;
};

/// Reads JSON (RFC 8259). Nothing when `text` is something else, is nested more than 100 deep, or has a text
/// with the character NUL or with half a surrogate pair in it, which databases do not keep.
[[nodiscard]] FERROWIND_EXPORT std::optional<JsonValue> ReadJson(std::string_view text);

/// What reading a text gave.
struct FERROWIND_EXPORT JsonReading {
  /// Nothing where `ReadJson` gives nothing.
  std::optional<JsonValue> value;
  /// How far the text could be read, in bytes.
  std::size_t place = 0;
};

/// The same for texts of people, who must know where it fails.
[[nodiscard]] FERROWIND_EXPORT JsonReading ReadJsonAndPlace(std::string_view text);

}  // namespace ferrowind::platform
