#include "ferrowind/adapters/grid_engine/key_places.h"

namespace ferrowind::grid_engine {

std::size_t KeyPlaces::Take(std::int32_t position) {
  std::size_t before = 0;
  while (before < asked_.size()) {
    const bool is_there = position != 0 && static_cast<std::int32_t>(before) + 1 >= position;
    const bool was_asked_behind = position != 0 && asked_[before] > position;
    if (is_there || was_asked_behind) break;
    ++before;
  }
  asked_.insert(asked_.begin() + static_cast<std::ptrdiff_t>(before), position);
  return before;
}

void KeyPlaces::Settle(std::size_t count) { asked_.assign(count, 0); }

}  // namespace ferrowind::grid_engine
