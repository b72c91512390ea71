// Counts what is allocated, in a program of its own since that replaces the allocation of the whole program.

#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "ferrowind/platform/values/record_set.h"
#include "ferrowind/platform/values/row_filter.h"

#include "tests/support/replaced_allocation.h"

namespace ferrowind::platform {
namespace {

std::size_t allocated_bytes = 0;

template <typename Action>
std::size_t BytesAllocatedBy(const Action& action) {
  allocated_bytes = 0;
  testing::before_allocation = [](std::size_t size) { allocated_bytes += size; };
  action();
  testing::before_allocation = nullptr;
  return allocated_bytes;
}

RecordSet OfRows(std::size_t count) {
  auto rows = std::make_shared<RecordRows>();
  rows->fields = {"F"};
  rows->cells.resize(count);
  rows->row_count = count;
  return RecordSet(std::move(rows));
}

TEST(Allocation, IsCountedHere) {
  EXPECT_GE(BytesAllocatedBy([] { const std::vector<int> numbers(100); }), 100 * sizeof(int));
}

TEST(Allocation, ACloneTakesAsMuchWhateverTheNumberOfRows) {
  const RecordSet small = OfRows(1);
  const RecordSet large = OfRows(100000);
  const std::size_t for_small = BytesAllocatedBy([&] { (void)small.Clone(); });
  EXPECT_GT(for_small, 0U);
  EXPECT_EQ(BytesAllocatedBy([&] { (void)large.Clone(); }), for_small);
}

TEST(Allocation, MatchingARowTakesNothing) {
  const RecordRows rows = {{"Number", "Name", "Day"},
                           {1, std::string(1000, 'X'), Date(2026, 12, 25), Value(), "Easter", Value()},
                           2};
  const RowFilter filter("(number > 0.5 and name >= '" + std::string(500, 'x') +
                             "') or day = #2026-12-25# or name = 'EASTER' or day = NULL",
                         rows.fields);
  bool first_matches = false;
  bool second_matches = false;
  EXPECT_EQ(BytesAllocatedBy([&] {
              first_matches = filter.Matches(rows, 0);
              second_matches = filter.Matches(rows, 1);
            }),
            0U);
  EXPECT_TRUE(first_matches);
  EXPECT_TRUE(second_matches);
}

}  // namespace
}  // namespace ferrowind::platform
