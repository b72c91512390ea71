#pragma once

#include <cstdint>
#include <string>
#include <utility>

#include "tests/unit/planning/planning_world.h"

namespace ferrowind::planning {

inline constexpr std::int32_t kEuro = 978;
inline constexpr std::int32_t kDollar = 840;
inline constexpr std::int32_t kKuna = 191;

/// A database that is read as a whole. EUR has a book, by which Christmas Day is closed, and Sundays of 2020;
/// HRK is money until the end of 2022.
class ReportWorld : public PlanningWorld {
 public:
  ReportWorld(Rows calendars, Rows marked_days, Rows books = {{kEuro, "ECB", "Closing days", "f", {}}})
      : calendars_(std::move(calendars)), books_(std::move(books)) {
    AnswerMarkedDays(marked_days);
  }

  void AnswerMarkedDays(const Rows& marked_days) {
    world.commands.Forget("CldGetContent");
    AnswerContent(calendars_, marked_days, books_,
                  books_.empty() ? Rows()
                                 : Rows{{kEuro, 1, "Sunday", 2, "weekday Sunday only 2020", {}, {}},
                                        {kEuro, 2, "Christmas Day", 3, "12-25", {}, {}}});
  }

 private:
  Rows calendars_;
  Rows books_;
};

/// EUR: no calendar of 2025, 2026 as planned, weekends only in 2027, and Christmas Day a day early in 2028.
/// USD: one holiday in 2026 and nothing else.
inline const Rows kSmallCalendars = {
    {kKuna, 2022}, {kDollar, 2026}, {kEuro, 2026}, {kEuro, 2027}, {kEuro, 2028}};
inline const Rows kSmallDays = {{kDollar, 2026, 359, 3, 3, {}},
                                {kEuro, 2026, 359, 3, 3, {}},
                                {kEuro, 2027, 3, 2, 2, {}},
                                {kEuro, 2028, 359, 3, 3, {}}};

}  // namespace ferrowind::planning
