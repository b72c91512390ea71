#include "ferrowind/adapters/grid_engine/record_sort.h"

#include <algorithm>
#include <numeric>
#include <random>

#include <gtest/gtest.h>

namespace ferrowind::grid_engine {
namespace {

KeyCodes RandomCodes(std::uint32_t count, std::uint32_t limit, unsigned seed) {
  std::mt19937 random(seed);
  KeyCodes codes{std::vector<std::uint32_t>(count), limit};
  for (std::uint32_t& code : codes.codes) code = static_cast<std::uint32_t>(random() % limit);
  return codes;
}

std::vector<Record> StableSorted(std::uint32_t count, const std::vector<SortKey>& keys) {
  std::vector<Record> order(count);
  std::iota(order.begin(), order.end(), Record{0});
  std::stable_sort(order.begin(), order.end(), [&](Record left, Record right) {
    for (const SortKey& key : keys) {
      const std::uint32_t a = key.codes->codes[left];
      const std::uint32_t b = key.codes->codes[right];
      if (a != b) return key.is_descending ? a > b : a < b;
    }
    return false;
  });
  return order;
}

TEST(RecordSort, OrdersFewRecordsAsAStableSortDoes) {
  const KeyCodes first = RandomCodes(300, 5, 1);
  const KeyCodes second = RandomCodes(300, 7, 2);
  const std::vector<SortKey> keys{{&first, true}, {&second, false}};
  EXPECT_EQ(SortRecords(300, keys), StableSorted(300, keys));
}

TEST(RecordSort, OrdersManyRecordsAsAStableSortDoes) {
  const KeyCodes first = RandomCodes(20000, 30, 3);
  const KeyCodes second = RandomCodes(20000, 5000, 4);
  const std::vector<SortKey> keys{{&first, false}, {&second, true}};
  EXPECT_EQ(SortRecords(20000, keys), StableSorted(20000, keys));
}

TEST(RecordSort, OrdersByMoreKeysThanOneNumberHolds) {
  const KeyCodes wide[] = {RandomCodes(5000, 40, 5), RandomCodes(5000, 4000000000U, 6),
                           RandomCodes(5000, 3, 7), RandomCodes(5000, 4000000000U, 8)};
  std::vector<SortKey> keys;
  for (const KeyCodes& codes : wide) keys.push_back({&codes, keys.size() % 2 == 1});
  EXPECT_EQ(SortRecords(5000, keys), StableSorted(5000, keys));
}

TEST(RecordSort, WithoutKeysKeepsTheOrder) {
  EXPECT_EQ(SortRecords(3, {}), (std::vector<Record>{0, 1, 2}));
  EXPECT_TRUE(SortRecords(0, {}).empty());
}

TEST(RecordSort, OfEqualKeysKeepsTheOrder) {
  const KeyCodes equal{std::vector<std::uint32_t>(4000, 0), 1};
  const std::vector<SortKey> keys{{&equal, true}};
  EXPECT_EQ(SortRecords(4000, keys), StableSorted(4000, keys));
}

TEST(RecordSort, FindsTheOrderOfWideNumbers) {
  std::mt19937_64 random(9);
  std::vector<std::uint64_t> numbers(5000);
  for (std::uint64_t& number : numbers) number = random();
  numbers[10] = numbers[4000];
  std::vector<std::uint32_t> expected(numbers.size());
  std::iota(expected.begin(), expected.end(), 0U);
  std::stable_sort(expected.begin(), expected.end(),
                   [&](std::uint32_t left, std::uint32_t right) { return numbers[left] < numbers[right]; });
  EXPECT_EQ(OrderOf(numbers), expected);
}

}  // namespace
}  // namespace ferrowind::grid_engine
