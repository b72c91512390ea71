#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "ferrowind/almanac/prepared_book.h"
#include "ferrowind/almanac/year_plan.h"

namespace ferrowind::almanac {

/// Makes one plan by the rules that planner.h tells; used once.
class PlanBuilder {
 public:
  /// `book` must outlive the builder; a year that can be planned.
  PlanBuilder(const PreparedBook& book, int year);

  [[nodiscard]] YearPlan Build();

 private:
  /// How far beyond its year a plan looks, and how far a holiday goes to find a free day.
  static constexpr int kDaysBeyond = 62;
  static constexpr int kFarthestFreeDay = 31;
  static constexpr std::size_t kMostDays = 366 + 2 * kDaysBeyond;
  static constexpr std::uint32_t kNoRule = UINT32_MAX;

  /// Bits of what is known of a day.
  enum Mark : std::uint8_t {
    kWeekend = 1,
    /// A rule opens the day.
    kOpened = 2,
    kBaseDate = 4,
    /// A holiday stands here whose base date it is.
    kStandingBase = 8,
    kMovedHere = 16,
  };

  struct Base {
    std::int32_t day;
    std::uint32_t rule;
    bool opens;
  };
  /// A rule that has come to a day.
  struct Claim {
    std::int32_t day;
    std::uint32_t rule;
    std::int32_t base;
    Standing standing;
    std::uint8_t move;
  };

  void MarkWeekends();
  void PlaceBases();
  void DecideBase(const Base& base);
  /// The position of the first move that holds.
  [[nodiscard]] std::optional<std::size_t> MoveOff(const Base& base, bool is_closed, bool is_taken) const;
  /// Nothing when there is no free day near enough, or when the target is the day itself.
  [[nodiscard]] std::optional<std::int32_t> TargetOf(const Move& move, std::int32_t day) const;
  [[nodiscard]] std::optional<std::int32_t> NearestFreeDay(std::int32_t day, int step) const;
  void Stand(const Base& base);
  /// Keeps for the reasons that the rule has left its base date.
  void Leave(const Base& base, YearPlan::Fate fate, std::int32_t target);
  void MoveAway(const Base& base, std::size_t move, std::int32_t target, bool is_closed);
  void PlaceBetween();

  void WriteDays(YearPlan& plan);
  void WriteDay(YearPlan& plan, std::int32_t day, const Claim* first_claim, const Claim* after_claims);
  void WriteUnknown(YearPlan& plan) const;
  /// Whether another rule of that name has a base date in the year.
  [[nodiscard]] bool IsAnnounced(std::uint32_t rule) const;
  [[nodiscard]] bool IsInYear(std::int32_t day) const {
    return day >= first_of_year_ && day <= last_of_year_;
  }
  [[nodiscard]] PlannedDay PlannedAs(const Claim& claim) const;
  [[nodiscard]] std::uint32_t WeekendRuleOf(std::int32_t day) const;

  [[nodiscard]] bool IsKnown(std::int32_t day) const { return day >= first_ && day <= last_; }
  [[nodiscard]] std::size_t At(std::int32_t day) const { return static_cast<std::size_t>(day - first_); }
  [[nodiscard]] bool Has(std::int32_t day, std::uint8_t marks) const {
    return (marks_[At(day)] & marks) != 0;
  }
  void Set(std::int32_t day, Mark mark) {
    marks_[At(day)] = static_cast<std::uint8_t>(marks_[At(day)] | mark);
  }

  const PreparedBook& book_;
  YearsAround years_;
  std::int32_t first_of_year_;
  std::int32_t last_of_year_;
  std::int32_t first_;
  std::int32_t last_;
  std::array<std::uint8_t, kMostDays> marks_{};
  /// The first rule in the book that has the day so far.
  std::array<std::uint32_t, kMostDays> holders_;
  /// The rule that closes each weekday in the year before, the year and the year after.
  std::array<std::array<std::uint32_t, 8>, 3> weekend_rules_;
  std::vector<Base> bases_;
  std::vector<Claim> claims_;
  /// The dropped and the moved away, as `YearPlan::Other`.
  std::vector<YearPlan::Other> others_;
};

}  // namespace ferrowind::almanac
