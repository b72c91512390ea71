#include "ferrowind/adapters/grid_engine/key_places.h"

#include <algorithm>
#include <cstdint>
#include <vector>

#include <gtest/gtest.h>

namespace ferrowind::grid_engine {
namespace {

/// The numbers 1, 2, ... of the keys in the order of the list, after they were added at these positions.
std::vector<int> OrderAfterAdding(const std::vector<std::int32_t>& positions) {
  KeyPlaces places;
  std::vector<int> order;
  int number = 0;
  for (const std::int32_t position : positions) {
    order.insert(order.begin() + static_cast<std::ptrdiff_t>(places.Take(position)), ++number);
  }
  return order;
}

using Order = std::vector<int>;

TEST(KeyPlaces, AppendAtPositionZero) { EXPECT_EQ(OrderAfterAdding({0, 0, 0}), (Order{1, 2, 3})); }

TEST(KeyPlaces, InsertAtAPositionInTheList) {
  EXPECT_EQ(OrderAfterAdding({0, 1, 2, 1}), (Order{4, 2, 3, 1}));
}

TEST(KeyPlaces, AppendAtAPositionBeyondTheEnd) {
  EXPECT_EQ(OrderAfterAdding({7, 7, 9, 0}), (Order{1, 2, 3, 4}));
}

TEST(KeyPlaces, BringAnyNumberOfKeysBackInTheirOrderLastFirstAndFirstFirst) {
  for (std::int32_t count = 1; count <= 6; ++count) {
    std::vector<std::int32_t> positions;
    Order ascending;
    for (std::int32_t i = 1; i <= count; ++i) {
      positions.push_back(i);
      ascending.push_back(i);
    }
    EXPECT_EQ(OrderAfterAdding(positions), ascending);
    std::reverse(positions.begin(), positions.end());
    Order descending(ascending.rbegin(), ascending.rend());
    EXPECT_EQ(OrderAfterAdding(positions), descending);
  }
}

TEST(KeyPlaces, ForgetWhatWasAskedForOnceTheListHasChangedOtherwise) {
  KeyPlaces places;
  EXPECT_EQ(places.Take(3), 0u);
  places.Settle(1);
  EXPECT_EQ(places.Take(2), 1u);
  places.Settle(0);
  EXPECT_EQ(places.Take(5), 0u);
}

}  // namespace
}  // namespace ferrowind::grid_engine
