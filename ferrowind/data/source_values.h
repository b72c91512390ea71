#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "ferrowind/platform/values/keyed_collection.h"
#include "ferrowind/platform/values/value.h"

namespace ferrowind {

/// One entry of a named value list.
struct SourceValuesCell {
  std::string Name;
  /// A plain value, or a reference to a record set that the cell shares with whoever added it.
  platform::Value Value;
};

/// A named value list: the parameters of a stored procedure, or the record sets that it returned.
///
/// Names are unique and compared without regard to case; positions are 1-based in the order of adding. An
/// index is a name when it is text and a position when it is a number. No operation throws: failures are
/// returned, and a failed operation changes nothing.
class SourceValues {
 public:
  /// True when added; false when the name is in use.
  bool Add(const std::string& Name, const platform::Value& Value = {});
  /// Removes that entry, or all entries without an index. False when there is no such entry.
  bool Remove(const std::optional<platform::Value>& index = std::nullopt);
  /// The cell itself, or null when there is none.
  [[nodiscard]] std::shared_ptr<SourceValuesCell> Values(const platform::Value& index) const;
  [[nodiscard]] std::int32_t Count() const;

 private:
  platform::KeyedCollection<std::shared_ptr<SourceValuesCell>> cells_;
};

}  // namespace ferrowind
