#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/business_days/convention.h"
#include "ferrowind/business_days/day_table.h"
#include "ferrowind/export.h"

/// What holiday calendars are for: business days and value dates. Uses no database and no windows.
namespace ferrowind::business_days {

/// The questions that a calendar answers, whether it is that of one currency or joint.
///
/// Every question about a day has three answers: open, closed and not prepared. `State` gives them; the
/// others throw `NotPrepared` (day_failures.h) when, and only when, their answer depends on a day that is not
/// prepared. Copies share what they know, which never changes: any number of threads may ask at a time, and
/// nothing here locks or allocates, failures and lists apart.
class FERROWIND_EXPORT BusinessDays {
 public:
  /// A day of the civil calendar, without a time zone.
  using Day = std::chrono::sys_days;

  /// The code of the currency; those of all members, joined by "+", of a joint calendar.
  [[nodiscard]] const std::string& Name() const { return content_->name; }

  /// What is known of the day; never throws.
  [[nodiscard]] DayState State(Day day) const { return table_->At(day); }
  /// Whether the calendar is open on the day.
  [[nodiscard]] bool IsBusinessDay(Day day) const {
    const DayState state = table_->At(day);
    if (state == DayState::kNotPrepared) FailNotPrepared(day);
    return state == DayState::kOpen;
  }

  /// The first business day after `day`. `NoBusinessDay` when none of the 366 days behind it is one.
  [[nodiscard]] Day Next(Day day) const;
  /// The last business day before `day`; `NoBusinessDay` likewise.
  [[nodiscard]] Day Previous(Day day) const;

  /// `day` when it is a business day; otherwise where the convention moves it. `NoBusinessDay` when there is
  /// none within 366 days, or within the month (half of a month) that must not be left.
  [[nodiscard]] Day Adjust(Day day, Convention convention) const {
    if (convention == Convention::kFollowing) {
      if (const auto found = table_->OpenDayNear(day, 1)) return *found;
    }
    return convention == Convention::kUnadjusted || IsBusinessDay(day) ? day : Moved(day, convention);
  }

  /// The `count`th business day after `day`, or before it when `count` is negative, whether or not `day` is
  /// one itself; with 0 `day` as it is.
  [[nodiscard]] Day AddBusinessDays(Day day, std::int32_t count) const {
    if (count > 0 && count <= kFewDays) {
      if (const auto found = table_->OpenDayNear(day + std::chrono::days(1), count)) return *found;
    }
    return Added(day, count);
  }
  /// How many business days lie behind `from`, up to and with `to`; negative, from `to` on and before `from`,
  /// when `to` is the earlier one. So it is what `AddBusinessDays` has to be given to come from `from` to a
  /// business day `to`.
  [[nodiscard]] std::int32_t BusinessDaysBetween(Day from, Day to) const;

  /// Of the month that `day` is in. `NoBusinessDay` when all its days are closed.
  [[nodiscard]] Day LastBusinessDayOfMonth(Day day) const;
  /// Whether `day` is a business day that no other one of its month follows.
  [[nodiscard]] bool IsLastBusinessDayOfMonth(Day day) const;

  /// The closed days from `first` to `last`, ascending.
  [[nodiscard]] std::vector<Day> ClosedDays(Day first, Day last) const;

  /// The first and the last prepared day; there may be years between them that are not prepared. Empty when
  /// no day is prepared.
  [[nodiscard]] std::optional<DayTable::Span> Horizon() const { return table_->Prepared(); }
  /// Whether all days of the year are known.
  [[nodiscard]] bool IsPrepared(std::chrono::year year) const;

 protected:
  /// What all copies of a calendar share. For the kinds of calendar that there are.
  struct Content {
    /// See `Name`.
    std::string name;
    /// Of a joint calendar those that all members know.
    DayTable days;
    /// Of a joint calendar, to tell which of them a day is missing in.
    std::vector<std::shared_ptr<const Content>> members;
  };

  /// `content` is not null.
  explicit BusinessDays(std::shared_ptr<const Content> content)
      : table_(&content->days), content_(std::move(content)) {}

  /// For joining with others; never null.
  [[nodiscard]] const std::shared_ptr<const Content>& Shared() const { return content_; }

 private:
  [[noreturn]] void FailNotPrepared(Day day) const;
  [[noreturn]] void FailNoBusinessDay(const std::string& where) const;
  /// As many as trades usually settle in.
  static constexpr std::int32_t kFewDays = 3;

  [[nodiscard]] Day Added(Day day, std::int32_t count) const;
  /// Where the convention moves a closed day.
  [[nodiscard]] Day Moved(Day day, Convention convention) const;
  /// The first business day from `first` to `last`; empty when there is none.
  [[nodiscard]] std::optional<Day> FirstBusinessDay(Day first, Day last) const;
  [[nodiscard]] std::optional<Day> LastBusinessDay(Day first, Day last) const;
  [[nodiscard]] Day AddOneByOne(Day day, std::int32_t count) const;

  /// Beside `content_`, which owns it, to save every question a step.
  const DayTable* table_;
  std::shared_ptr<const Content> content_;
};

}  // namespace ferrowind::business_days
