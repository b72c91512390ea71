#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "ferrowind/exchange/list_faults.h"
#include "ferrowind/exchange/listed_day.h"
#include "ferrowind/exchange/year_list.h"

namespace ferrowind::exchange {

/// The state of the calendars that a list was made of.
struct Revision {
  /// Grows with every change.
  int number = 0;
  /// Of the last change: UTC, as YYYYMMDDTHHMMSSZ.
  std::string moment = "19700101T000000Z";
};

/// Lists as calendar programs exchange them (iCalendar, RFC 5545). A library of others knows that form; who
/// works with lists does not know the library.
class ICalendarFormat {
 public:
  virtual ~ICalendarFormat() = default;
  /// One all-day event for each day, so that a program which has read an earlier list changes its events; the
  /// same days and revision give the same text. Precondition: each day has a currency.
  [[nodiscard]] virtual std::string Write(const DayList& list, const Revision& revision) const = 0;
  /// The days of the events, with the lines where these begin; those that repeat give their days of the
  /// `wanted` years. `text` is UTF-8. What cannot be read is a `ListError`.
  [[nodiscard]] virtual DayList Read(std::string_view text,
                                     const std::optional<WantedYears>& wanted) const = 0;
};

/// Of a program that has no such library: it reads and writes none of these lists.
class NoICalendar : public ICalendarFormat {
 public:
  [[nodiscard]] std::string Write(const DayList&, const Revision&) const override { Refuse(); }
  [[nodiscard]] DayList Read(std::string_view, const std::optional<WantedYears>&) const override { Refuse(); }

 private:
  [[noreturn]] static void Refuse() {
    throw ListError({{0, "this program neither reads nor writes calendar files"}});
  }
};

}  // namespace ferrowind::exchange
