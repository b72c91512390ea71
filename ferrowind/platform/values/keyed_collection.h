#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "ferrowind/export.h"
#include "ferrowind/platform/values/case_fold.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"
#include "ferrowind/platform/values/value.h"

namespace ferrowind::platform {

/// An ordered list of elements, each under a key; the platform's collection.
///
/// Keys are compared without regard to case. Positions are 1-based and follow the order of insertion. An
/// index is a key when it is text and a position when it is a number (a boolean is one: -1 or 0). Failures:
/// Duplicate key (457) for a key in use, Invalid argument (5) for an unknown key, Subscript out of range (9)
/// for a position that is none, Type mismatch (13) for an index that is neither text nor number. A failed
/// operation changes nothing.
template <typename T>
class FERROWIND_EXPORT KeyedCollection {
 public:
  /// Adds the element behind the others.
  void Append(const std::string& key, T element) {
    std::string folded = FoldCase(key);
    if (positions_.contains(folded)) throw DuplicateKey();
    entries_.push_back({folded, std::move(element)});
    try {
      positions_.emplace(std::move(folded), entries_.size() - 1);
    } catch (...) {
      entries_.pop_back();
      throw;
    }
  }

  /// The element of that key or position; valid until one is added or removed.
  [[nodiscard]] const T& At(const Value& index) const { return entries_[PositionOf(index)].element; }

  /// Takes the element of that key or position out; those behind it move up.
  void Remove(const Value& index) {
    const std::size_t position = PositionOf(index);
    positions_.erase(entries_[position].folded_key);
    entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(position));
    for (std::size_t i = position; i < entries_.size(); ++i) positions_[entries_[i].folded_key] = i;
  }

  /// How many elements there are, which is the last position.
  [[nodiscard]] std::int32_t Count() const { return static_cast<std::int32_t>(entries_.size()); }

 private:
  struct Entry {
    std::string folded_key;
    T element;
  };

  [[nodiscard]] std::size_t PositionOf(const Value& index) const {
    if (const auto* key = index.If<std::string>()) {
      const auto found = positions_.find(FoldCase(*key));
      if (found == positions_.end()) throw InvalidArgument();
      return found->second;
    }
    if (index.IsEmpty() || index.IsObject() || index.Is<Date>()) throw TypeMismatch();
    const std::int32_t position = PositionIn(index);
    if (position < 1 || position > Count()) throw SubscriptOutOfRange();
    return static_cast<std::size_t>(position) - 1;
  }

  /// A number too large to be a position is one that no element has.
  [[nodiscard]] static std::int32_t PositionIn(const Value& number) {
    try {
      return ToInt32(number);
    } catch (const Failure&) {
      throw SubscriptOutOfRange();
    }
  }

  std::vector<Entry> entries_;
  std::unordered_map<std::string, std::size_t> positions_;
};

}  // namespace ferrowind::platform
