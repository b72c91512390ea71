#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "ferrowind/almanac/anchor_day.h"
#include "ferrowind/almanac/date_expression.h"
#include "ferrowind/almanac/date_table.h"
#include "ferrowind/almanac/day_count.h"

namespace ferrowind::almanac {

/// A year with its neighbours, as far as base dates of a plan can belong to.
class YearsAround {
 public:
  explicit YearsAround(int year);

  [[nodiscard]] int Middle() const { return middle_; }
  /// The serial of 1 January of `Middle() - kReach` to `Middle() + kReach + 1`.
  [[nodiscard]] std::int32_t FirstDayOf(int year) const {
    const int place = year - middle_ + kReach;
    return first_days_[static_cast<std::size_t>(place)];
  }
  /// Of a day of the years that `FirstDayOf` knows.
  [[nodiscard]] int YearOf(std::int32_t day) const;

  /// An offset takes a date into the next year, steps a few weeks further.
  static constexpr int kReach = 3;

 private:
  int middle_;
  std::array<std::int32_t, 2 * kReach + 2> first_days_;
};

/// The base of an expression, ready to be asked for its dates many times. Everything but `between`.
class PreparedBase {
 public:
  /// `expression` must outlive the base; of a table it keeps what it needs.
  PreparedBase(const DateExpression& expression, const DateTables& tables);

  /// Calls `use(serial)` for each base date from `first` to `last`, both within a year of the middle of
  /// `years`. In no certain order.
  template <typename Use>
  void ForEach(const YearsAround& years, std::int32_t first, std::int32_t last, const Use& use) const;

  /// Whether every base date of the year is known; only tables know less.
  [[nodiscard]] bool Knows(int year) const;
  struct YearSpan {
    int first;
    int last;
  };
  /// Of the years that plans know those in which a known base date can be; none when the first comes after
  /// the last.
  [[nodiscard]] YearSpan PossibleYears() const;

 private:
  enum class Source : std::uint8_t { kYearly, kSingle, kTable, kWeekly, kNone };

  void KeepTable(const DateTables& tables, const std::string& name, int offset);
  [[nodiscard]] bool Counts(std::int32_t day, const YearsAround& years) const;
  [[nodiscard]] std::int32_t TakeStepsFrom(std::int32_t day) const {
    return expression_->steps.empty() ? day : TakeSteps(*expression_, day);
  }

  const DateExpression* expression_;
  Source source_ = Source::kYearly;
  bool has_conditions_ = false;
  /// Where the base date of a year can be.
  DaySpan span_;
  /// How far from its anchor's day, offset included, a base date can be.
  DaySpan shift_;
  /// With `kSingle`.
  std::int32_t single_day_ = 0;
  /// With `kTable`: its days with the offset, ascending, and the years whose base dates are known: those that
  /// it reaches, without the first or last when offset and steps take dates out of their year.
  std::vector<std::int32_t> table_days_;
  int first_known_ = 0;
  int last_known_ = -1;
};

template <typename Use>
void PreparedBase::ForEach(const YearsAround& years, std::int32_t first, std::int32_t last,
                           const Use& use) const {
  const auto offer = [&](std::int32_t day) {
    if (day >= first && day <= last && (!has_conditions_ || Counts(day, years))) use(day);
  };
  switch (source_) {
    case Source::kYearly:
      for (int year = years.Middle() - YearsAround::kReach; year <= years.Middle() + YearsAround::kReach;
           ++year) {
        const std::int32_t first_day = years.FirstDayOf(year);
        if (first_day + span_.first > last || first_day + span_.last < first) continue;
        if (const auto day = AnchorDay(expression_->anchor, year)) offer(TakeStepsFrom(*day));
      }
      break;
    case Source::kSingle:
      offer(single_day_);
      break;
    case Source::kTable: {
      auto day = std::lower_bound(table_days_.begin(), table_days_.end(), first - shift_.last);
      for (; day != table_days_.end() && *day + shift_.first <= last; ++day) offer(TakeStepsFrom(*day));
      break;
    }
    case Source::kWeekly: {
      const int weekday = std::get<EveryWeekday>(expression_->anchor).weekday;
      for (auto day = first + (weekday - WeekdayOf(first) + 7) % 7; day <= last; day += 7) offer(day);
      break;
    }
    case Source::kNone:
      break;
  }
}

}  // namespace ferrowind::almanac
