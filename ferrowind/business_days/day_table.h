#pragma once

#include <bit>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "ferrowind/business_days/prepared_year.h"
#include "ferrowind/export.h"

namespace ferrowind::business_days {

/// What is known of a day.
enum class FERROWIND_EXPORT DayState : std::uint8_t {
  kOpen,
  kClosed,
  /// Nobody has said what the day is. Never taken for open.
  kNotPrepared,
};

/// The days of a calendar as bits, with running counts, so that days are counted and added without looking at
/// each. Immutable; whatever it is asked neither locks nor allocates.
class FERROWIND_EXPORT DayTable {
 public:
  /// A day of the civil calendar, without a time zone.
  using Day = std::chrono::sys_days;

  /// `years` in any order, with holes as they are. A year twice, a year outside 1900 to 3000, and days that
  /// are not as `PreparedYear` says are the failure InvalidArgument, which names the year.
  explicit DayTable(std::vector<PreparedYear> years);

  /// The days that both know: open where they are open in both. A day that one of them does not know is not
  /// prepared, also where the other is closed, since years are prepared whole.
  [[nodiscard]] static DayTable Joined(const DayTable& left, const DayTable& right);

  /// What is known of the day; any day may be asked for.
  [[nodiscard]] DayState At(Day day) const {
    const auto position = static_cast<std::uint64_t>((day - origin_).count());
    if (position >= size_) return DayState::kNotPrepared;
    const Word& word = words_[position / kWordDays];
    const std::uint64_t bit = std::uint64_t{1} << position % kWordDays;
    if ((word.open & bit) != 0) return DayState::kOpen;
    return (word.unknown & bit) != 0 ? DayState::kNotPrepared : DayState::kClosed;
  }

  /// The `count`th open day from `day` on, where one look tells it; empty where more days have to be looked
  /// at. For small counts: it takes a step for each. Precondition: `count` > 0.
  [[nodiscard]] std::optional<Day> OpenDayNear(Day day, std::int32_t count) const {
    const auto position = static_cast<std::uint64_t>((day - origin_).count());
    if (position >= size_) return std::nullopt;
    const Word& word = words_[position / kWordDays];
    std::uint64_t open = word.open >> position % kWordDays;
    for (; count > 1; --count) open &= open - 1;
    const std::uint64_t unknown = word.unknown >> position % kWordDays;
    // The bits below the lowest one of `open` are the days before the one that is found.
    if (open == 0 || (unknown & (open ^ (open - 1))) != 0) return std::nullopt;
    return day + std::chrono::days(std::countr_zero(open));
  }

  /// The first day from `first` to `last` that is not closed; empty when all are.
  [[nodiscard]] std::optional<Day> FirstNotClosed(Day first, Day last) const;
  /// The last day from `last` back to `first` that is not closed; empty when all are.
  [[nodiscard]] std::optional<Day> LastNotClosed(Day first, Day last) const;

  /// The open days from `first` to `last`; empty when one of the days is not prepared.
  [[nodiscard]] std::optional<std::int32_t> OpenDays(Day first, Day last) const;
  /// The `count`th open day after `day`; empty when it, or a day on the way to it, is not prepared.
  /// Precondition: `count` > 0.
  [[nodiscard]] std::optional<Day> OpenDayAfter(Day day, std::int64_t count) const;
  /// The `count`th open day before `day`, likewise.
  [[nodiscard]] std::optional<Day> OpenDayBefore(Day day, std::int64_t count) const;

  /// The first day after `day` that is not prepared; there always is one.
  [[nodiscard]] Day FirstUnknownAfter(Day day) const;
  /// The last day before `day` that is not prepared; there always is one.
  [[nodiscard]] Day LastUnknownBefore(Day day) const;

  /// Two days, and those between them.
  struct Span {
    ///@{
    /// Both belong to it.
    Day first;
    Day last;
    ///@}
  };
  /// The first and the last prepared day; empty when there is none.
  [[nodiscard]] std::optional<Span> Prepared() const;
  /// The most closed days in a row.
  [[nodiscard]] std::int32_t LongestClosure() const { return longest_closure_; }

 private:
  static constexpr std::uint32_t kWordDays = 64;

  /// 64 days, the first in the lowest bit, and what comes before them in the table.
  struct Word {
    std::uint64_t open = 0;
    std::uint64_t unknown = 0;
    std::int32_t open_before = 0;
    std::int32_t unknown_before = 0;
  };
  /// 64 days that begin anywhere, the first in the lowest bit.
  struct Bits {
    std::uint64_t open;
    std::uint64_t unknown;
  };

  DayTable() = default;
  /// Empty words for these days, with a word that knows no day on either side, so that nothing runs off the
  /// table. Words begin on the same days in all tables.
  void Cover(Day first, Day last);
  void SetYear(const PreparedYear& year);
  /// To be called when all bits stand.
  void Count();

  /// The days from `day` on; empty where they are not all in the table.
  [[nodiscard]] std::optional<Bits> BitsFrom(Day day) const;
  [[nodiscard]] bool Covers(Day day) const { return day >= origin_ && day < DayAt(size_); }
  /// Precondition: `Covers(day)`.
  [[nodiscard]] std::uint32_t PositionOf(Day day) const {
    return static_cast<std::uint32_t>((day - origin_).count());
  }
  [[nodiscard]] Day DayAt(std::uint32_t position) const { return origin_ + std::chrono::days(position); }
  [[nodiscard]] std::int32_t OpenUntil(std::uint32_t position) const;
  [[nodiscard]] std::int32_t UnknownUntil(std::uint32_t position) const;
  /// The position of the `rank`th open day, from 1 on; empty when there are fewer. `near` is where to look
  /// first.
  [[nodiscard]] std::optional<std::uint32_t> OpenAt(std::int64_t rank, std::uint32_t near) const;

  Day origin_{};
  /// In days, whole words.
  std::uint32_t size_ = 0;
  std::vector<Word> words_;
  std::int32_t longest_closure_ = 0;
};

}  // namespace ferrowind::business_days
