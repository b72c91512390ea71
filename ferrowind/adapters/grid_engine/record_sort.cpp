#include "ferrowind/adapters/grid_engine/record_sort.h"

#include <algorithm>
#include <array>
#include <bit>
#include <numeric>
#include <utility>

namespace ferrowind::grid_engine {

namespace {

/// 2048 counters stay in the first-level cache, and few passes are needed.
constexpr unsigned kDigitBits = 11;
/// Below this the counters of a radix sort cost more than comparing.
constexpr std::size_t kRadixPays = 2048;

unsigned BitsFor(std::uint64_t limit) {
  return limit <= 1 ? 0U : static_cast<unsigned>(std::bit_width(limit - 1));
}

/// Sorts by the `key_bits` bits from `shift` on, stably.
void RadixSort(std::vector<std::uint64_t>& items, unsigned shift, unsigned key_bits) {
  const unsigned passes = (key_bits + kDigitBits - 1) / kDigitBits;
  std::vector<std::uint64_t> other(items.size());
  for (unsigned pass = 0; pass < passes; ++pass) {
    const unsigned digit_shift = shift + pass * kDigitBits;
    const unsigned digit_bits = std::min(kDigitBits, key_bits - pass * kDigitBits);
    const std::uint64_t mask = (std::uint64_t{1} << digit_bits) - 1;
    std::array<std::uint32_t, std::size_t{1} << kDigitBits> places{};
    for (const std::uint64_t item : items) ++places[(item >> digit_shift) & mask];
    if (std::find(places.begin(), places.end(), items.size()) != places.end()) continue;
    std::uint32_t place = 0;
    for (std::uint32_t& count : places) place += std::exchange(count, place);
    for (const std::uint64_t item : items) other[places[(item >> digit_shift) & mask]++] = item;
    items.swap(other);
  }
}

/// The keys that one packed number holds beside a position.
struct KeyGroup {
  std::span<const SortKey> keys;
  unsigned bits = 0;
};

std::vector<KeyGroup> SplitKeys(std::span<const SortKey> keys, unsigned position_bits) {
  std::vector<KeyGroup> groups;
  std::size_t first = 0;
  unsigned bits = 0;
  for (std::size_t i = 0; i < keys.size(); ++i) {
    const unsigned key_bits = BitsFor(keys[i].codes->limit);
    if (i > first && bits + key_bits > 64 - position_bits) {
      groups.push_back({keys.subspan(first, i - first), bits});
      first = i;
      bits = 0;
    }
    bits += key_bits;
  }
  if (first < keys.size()) groups.push_back({keys.subspan(first), bits});
  return groups;
}

std::uint64_t PackedKey(std::span<const SortKey> keys, Record record) {
  std::uint64_t packed = 0;
  for (const SortKey& key : keys) {
    const std::uint32_t code = key.codes->codes[record];
    packed = (packed << BitsFor(key.codes->limit)) | (key.is_descending ? key.codes->limit - 1 - code : code);
  }
  return packed;
}

}  // namespace

std::vector<Record> SortRecords(std::uint32_t record_count, std::span<const SortKey> keys) {
  std::vector<Record> order(record_count);
  std::iota(order.begin(), order.end(), Record{0});
  const unsigned position_bits = BitsFor(record_count);
  const std::uint64_t position_mask = (std::uint64_t{1} << position_bits) - 1;
  const std::vector<KeyGroup> groups = SplitKeys(keys, position_bits);
  std::vector<std::uint64_t> items(groups.empty() ? 0 : record_count);
  // The least significant keys first: every later sort keeps the order among its equals.
  for (auto group = groups.rbegin(); group != groups.rend(); ++group) {
    for (std::uint32_t position = 0; position < record_count; ++position) {
      items[position] = (PackedKey(group->keys, order[position]) << position_bits) | position;
    }
    if (items.size() < kRadixPays) {
      std::sort(items.begin(), items.end());
    } else {
      RadixSort(items, position_bits, group->bits);
    }
    const std::vector<Record> previous = order;
    for (std::uint32_t position = 0; position < record_count; ++position) {
      order[position] = previous[items[position] & position_mask];
    }
  }
  return order;
}

std::vector<std::uint32_t> OrderOf(std::span<const std::uint64_t> numbers) {
  std::vector<std::uint32_t> order(numbers.size());
  std::iota(order.begin(), order.end(), 0U);
  if (numbers.size() < kRadixPays) {
    std::stable_sort(order.begin(), order.end(),
                     [&](std::uint32_t left, std::uint32_t right) { return numbers[left] < numbers[right]; });
    return order;
  }
  // Two halves, each packed with a position and sorted by radix.
  const unsigned position_bits = BitsFor(numbers.size());
  const std::uint64_t position_mask = (std::uint64_t{1} << position_bits) - 1;
  std::vector<std::uint64_t> items(numbers.size());
  for (const unsigned half_shift : {0U, 32U}) {
    for (std::uint32_t position = 0; position < order.size(); ++position) {
      const std::uint64_t half = (numbers[order[position]] >> half_shift) & 0xFFFFFFFFU;
      items[position] = (half << position_bits) | position;
    }
    RadixSort(items, position_bits, 32);
    const std::vector<std::uint32_t> previous = order;
    for (std::uint32_t position = 0; position < order.size(); ++position) {
      order[position] = previous[items[position] & position_mask];
    }
  }
  return order;
}

}  // namespace ferrowind::grid_engine
