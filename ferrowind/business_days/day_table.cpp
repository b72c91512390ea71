#include "ferrowind/business_days/day_table.h"

#include <algorithm>
#include <bit>
#include <ratio>
#include <string>
#include <utility>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::business_days {
namespace {

using std::chrono::days;
using std::chrono::January;
using std::chrono::sys_days;
using std::chrono::year;

sys_days FirstOf(year which) { return which / January / 1; }

platform::Failure Refused(year which, const std::string& why) {
  return {platform::failure_number::kInvalidArgument,
          "The year " + std::to_string(static_cast<int>(which)) + ' ' + why};
}

void RequireYear(const PreparedYear& prepared) {
  (void)CalendarYear(static_cast<int>(prepared.year));
  const auto length = static_cast<std::size_t>(prepared.year.is_leap() ? 366 : 365);
  if (prepared.days.size() != length) {
    throw Refused(prepared.year,
                  "has " + std::to_string(length) + " days, not " + std::to_string(prepared.days.size()));
  }
  if (const std::size_t place = prepared.days.find_first_not_of("01"); place != std::string::npos)
    throw Refused(prepared.year, "has neither 0 nor 1 for its day " + std::to_string(place + 1));
}

/// The bits up to `bit`, with it.
constexpr std::uint64_t Until(std::uint32_t bit) { return ~std::uint64_t{0} >> (63 - bit); }
/// The bits from `bit` on.
constexpr std::uint64_t From(std::uint32_t bit) { return ~std::uint64_t{0} << bit; }

/// In each byte how many bits are set in it and in all lower ones. By arithmetic, since the instruction for
/// it is none that every processor has, and without it std::popcount is a call.
std::uint64_t CountsByByte(std::uint64_t bits) {
  constexpr std::uint64_t kEachByte = 0x0101010101010101;
  std::uint64_t counts = bits - ((bits >> 1) & 0x5555555555555555);
  counts = (counts & 0x3333333333333333) + ((counts >> 2) & 0x3333333333333333);
  return ((counts + (counts >> 4)) & 0x0f0f0f0f0f0f0f0f) * kEachByte;
}

std::int32_t CountOf(std::uint64_t bits) { return static_cast<std::int32_t>(CountsByByte(bits) >> 56); }

/// The place of the `rank`th set bit, from 1 on; empty when there are fewer.
std::optional<std::uint32_t> PlaceOfBit(std::uint64_t bits, std::uint32_t rank) {
  const std::uint64_t counts = CountsByByte(bits);
  if (rank > counts >> 56) return std::nullopt;
  std::uint32_t place = 0;
  while (((counts >> place) & 0xff) < rank) place += 8;
  if (place > 0) rank -= static_cast<std::uint32_t>((counts >> (place - 8)) & 0xff);
  std::uint64_t byte = bits >> place;
  for (; rank > 1; --rank) byte &= byte - 1;
  return place + static_cast<std::uint32_t>(std::countr_zero(byte));
}

}  // namespace

DayTable::DayTable(std::vector<PreparedYear> years) {
  for (const PreparedYear& prepared : years) RequireYear(prepared);
  std::ranges::sort(years, {}, &PreparedYear::year);
  if (const auto twice = std::ranges::adjacent_find(years, {}, &PreparedYear::year); twice != years.end())
    throw Refused(twice->year, "is there twice");
  if (!years.empty()) {
    Cover(FirstOf(years.front().year), FirstOf(years.back().year + std::chrono::years(1)) - days(1));
    for (const PreparedYear& prepared : years) SetYear(prepared);
  }
  Count();
}

DayTable DayTable::Joined(const DayTable& left, const DayTable& right) {
  DayTable joined;
  const auto left_span = left.Prepared();
  const auto right_span = right.Prepared();
  if (left_span && right_span) {
    const Day first = std::max(left_span->first, right_span->first);
    const Day last = std::min(left_span->last, right_span->last);
    if (first <= last) joined.Cover(first, last);
  }
  for (std::uint32_t at = 0; at < joined.words_.size(); ++at) {
    const Day first = joined.DayAt(at * kWordDays);
    if (!left.Covers(first) || !right.Covers(first)) continue;
    const Word& left_word = left.words_[left.PositionOf(first) / kWordDays];
    const Word& right_word = right.words_[right.PositionOf(first) / kWordDays];
    joined.words_[at].open = left_word.open & right_word.open;
    joined.words_[at].unknown = left_word.unknown | right_word.unknown;
  }
  joined.Count();
  return joined;
}

void DayTable::Cover(Day first, Day last) {
  using Words = std::chrono::duration<std::int64_t, std::ratio_multiply<days::period, std::ratio<kWordDays>>>;
  const auto from = std::chrono::floor<Words>(first) - Words(1);
  const auto to = std::chrono::floor<Words>(last) + Words(2);
  origin_ = from;
  words_.assign(static_cast<std::size_t>((to - from).count()), Word{.unknown = ~std::uint64_t{0}});
  size_ = static_cast<std::uint32_t>(words_.size()) * kWordDays;
}

void DayTable::SetYear(const PreparedYear& prepared) {
  std::uint32_t position = PositionOf(FirstOf(prepared.year));
  for (const char day : prepared.days) {
    Word& word = words_[position / kWordDays];
    const std::uint64_t bit = std::uint64_t{1} << position % kWordDays;
    word.unknown &= ~bit;
    if (day == '0') word.open |= bit;
    ++position;
  }
}

void DayTable::Count() {
  std::int32_t open = 0;
  std::int32_t unknown = 0;
  for (Word& word : words_) {
    word.open_before = open;
    word.unknown_before = unknown;
    open += CountOf(word.open);
    unknown += CountOf(word.unknown);
  }
  std::int32_t closed = 0;
  for (std::uint32_t position = 0; position < size_; ++position) {
    closed = At(DayAt(position)) == DayState::kClosed ? closed + 1 : 0;
    longest_closure_ = std::max(longest_closure_, closed);
  }
}

std::optional<DayTable::Day> DayTable::FirstNotClosed(Day first, Day last) const {
  if (first > last) return std::nullopt;
  if (!Covers(first)) return first;
  const std::uint32_t position = PositionOf(first);
  std::uint32_t at = position / kWordDays;
  std::uint64_t found = (words_[at].open | words_[at].unknown) & From(position % kWordDays);
  // The last word knows no day, so there is an end.
  while (found == 0) {
    ++at;
    found = words_[at].open | words_[at].unknown;
  }
  const Day day = DayAt(at * kWordDays + static_cast<std::uint32_t>(std::countr_zero(found)));
  return day <= last ? std::optional(day) : std::nullopt;
}

std::optional<DayTable::Day> DayTable::LastNotClosed(Day first, Day last) const {
  if (first > last) return std::nullopt;
  if (!Covers(last)) return last;
  const std::uint32_t position = PositionOf(last);
  std::uint32_t at = position / kWordDays;
  std::uint64_t found = (words_[at].open | words_[at].unknown) & Until(position % kWordDays);
  // So does the first.
  while (found == 0) {
    --at;
    found = words_[at].open | words_[at].unknown;
  }
  const Day day = DayAt(at * kWordDays + 63 - static_cast<std::uint32_t>(std::countl_zero(found)));
  return day >= first ? std::optional(day) : std::nullopt;
}

std::optional<DayTable::Bits> DayTable::BitsFrom(Day day) const {
  if (!Covers(day) || !Covers(day + days(kWordDays))) return std::nullopt;
  const std::uint32_t position = PositionOf(day);
  const Word& word = words_[position / kWordDays];
  const Word& next = words_[position / kWordDays + 1];
  const std::uint32_t bit = position % kWordDays;
  // In two steps, since there is no shift by 64.
  const auto together = [bit](std::uint64_t low, std::uint64_t high) {
    return low >> bit | high << 1 << (kWordDays - 1 - bit);
  };
  return Bits{together(word.open, next.open), together(word.unknown, next.unknown)};
}

std::int32_t DayTable::OpenUntil(std::uint32_t position) const {
  const Word& word = words_[position / kWordDays];
  return word.open_before + CountOf(word.open & Until(position % kWordDays));
}

std::int32_t DayTable::UnknownUntil(std::uint32_t position) const {
  const Word& word = words_[position / kWordDays];
  if (word.unknown == 0) return word.unknown_before;
  return word.unknown_before + CountOf(word.unknown & Until(position % kWordDays));
}

std::optional<std::int32_t> DayTable::OpenDays(Day first, Day last) const {
  if (first > last) return 0;
  // A day before a prepared one is always in the table, be it in its word that knows no day.
  if (!Covers(first) || !Covers(last)) return std::nullopt;
  const std::uint32_t to = PositionOf(last);
  const std::uint32_t from = PositionOf(first);
  if (from == 0) return std::nullopt;
  if (UnknownUntil(to) != UnknownUntil(from - 1)) return std::nullopt;
  return OpenUntil(to) - OpenUntil(from - 1);
}

std::optional<std::uint32_t> DayTable::OpenAt(std::int64_t rank, std::uint32_t near) const {
  const Word& last = words_.back();
  if (rank < 1 || rank > last.open_before) return std::nullopt;
  const auto is_before = [rank](const Word& word) { return word.open_before < rank; };
  // The word is the last one with fewer open days before it. It is mostly one of the next.
  constexpr std::uint32_t kNext = 4;
  std::uint32_t at = near;
  std::uint32_t steps = 0;
  while (steps < kNext && is_before(words_[at]) && is_before(words_[at + 1])) {
    ++at;
    ++steps;
  }
  if (steps == kNext || !is_before(words_[at])) {
    const auto behind = std::ranges::partition_point(words_, is_before);
    at = static_cast<std::uint32_t>(behind - words_.begin()) - 1;
  }
  const Word& word = words_[at];
  return at * kWordDays + *PlaceOfBit(word.open, static_cast<std::uint32_t>(rank - word.open_before));
}

std::optional<DayTable::Day> DayTable::OpenDayAfter(Day day, std::int64_t count) const {
  // Mostly the days lie close together.
  if (const auto near = count <= kWordDays ? BitsFrom(day + days(1)) : std::nullopt;
      near && near->unknown == 0) {
    if (const auto place = PlaceOfBit(near->open, static_cast<std::uint32_t>(count)))
      return day + days(1 + static_cast<int>(*place));
  }
  if (!Covers(day)) return std::nullopt;
  const std::uint32_t from = PositionOf(day);
  const auto found = OpenAt(OpenUntil(from) + count, from / kWordDays);
  if (!found || UnknownUntil(*found) != UnknownUntil(from)) return std::nullopt;
  return DayAt(*found);
}

std::optional<DayTable::Day> DayTable::OpenDayBefore(Day day, std::int64_t count) const {
  if (!Covers(day) || day == origin_) return std::nullopt;
  const std::uint32_t before = PositionOf(day) - 1;
  const auto found = OpenAt(OpenUntil(before) - count + 1, before / kWordDays);
  if (!found || UnknownUntil(*found) != UnknownUntil(before)) return std::nullopt;
  return DayAt(*found);
}

DayTable::Day DayTable::FirstUnknownAfter(Day day) const {
  do {
    day = *FirstNotClosed(day + days(1), Day::max());
  } while (At(day) == DayState::kOpen);
  return day;
}

DayTable::Day DayTable::LastUnknownBefore(Day day) const {
  do {
    day = *LastNotClosed(Day::min(), day - days(1));
  } while (At(day) == DayState::kOpen);
  return day;
}

std::optional<DayTable::Span> DayTable::Prepared() const {
  const auto knows_a_day = [](const Word& word) { return ~word.unknown != 0; };
  const auto first = std::ranges::find_if(words_, knows_a_day);
  if (first == words_.end()) return std::nullopt;
  const auto last = std::ranges::find_if(words_.rbegin(), words_.rend(), knows_a_day);
  const auto first_at = static_cast<std::uint32_t>(first - words_.begin());
  const auto last_at = static_cast<std::uint32_t>(words_.rend() - last) - 1;
  return Span{DayAt(first_at * kWordDays + static_cast<std::uint32_t>(std::countr_one(first->unknown))),
              DayAt(last_at * kWordDays + 63 - static_cast<std::uint32_t>(std::countl_one(last->unknown)))};
}

}  // namespace ferrowind::business_days
