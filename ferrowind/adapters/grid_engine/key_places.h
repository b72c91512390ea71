#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace ferrowind::grid_engine {

/// Where keys go that are added to a key list one by one, each at a position of its own.
///
/// A key asked for beyond the end goes to the end, and those asked for at lower positions later still go
/// before it. So keys that are added back last first, each at its old position, come back in their old order.
class KeyPlaces {
 public:
  /// Takes the place of one more key, asked for at the 1-based `position` or, when that is 0, at the end.
  /// Returns the number of keys before it.
  std::size_t Take(std::int32_t position);
  /// The list changed otherwise and has `count` keys now, which no longer remember what they were asked for.
  void Settle(std::size_t count);

 private:
  /// What each key was asked for; 0 when that is forgotten.
  std::vector<std::int32_t> asked_;
};

}  // namespace ferrowind::grid_engine
