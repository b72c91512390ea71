#pragma once

#include <chrono>
#include <cstdint>
#include <string>
#include <vector>

#include "ferrowind/business_days/convention.h"
#include "ferrowind/business_days/prepared_year.h"

namespace ferrowind::business_days {

/// What a question asks that depends on a day which is not prepared.
struct Unknown {
  std::chrono::year year;
};
/// What a question asks that finds no business day.
struct NoneFound {};

/// The same questions, answered by looking at one day after the other.
class NaiveDays {
 public:
  using Day = std::chrono::sys_days;

  explicit NaiveDays(const std::vector<PreparedYear>& years);
  /// Closed when one of them is, prepared when both are.
  NaiveDays(const NaiveDays& left, const NaiveDays& right);

  /// Throws `Unknown`.
  [[nodiscard]] bool IsOpen(Day day) const;
  [[nodiscard]] Day Next(Day day) const;
  [[nodiscard]] Day Previous(Day day) const;
  [[nodiscard]] Day Adjust(Day day, Convention convention) const;
  [[nodiscard]] Day Add(Day day, std::int32_t count) const;
  [[nodiscard]] std::int32_t Between(Day from, Day to) const;
  [[nodiscard]] Day LastOfMonth(Day day) const;

 private:
  /// By day since 1970: '1' closed, '0' open, ' ' not prepared; days behind the end are not prepared.
  std::string days_;
};

}  // namespace ferrowind::business_days
