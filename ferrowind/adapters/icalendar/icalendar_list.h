#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "ferrowind/exchange/icalendar_format.h"
#include "ferrowind/exchange/listed_day.h"
#include "ferrowind/exchange/year_list.h"

/// Lists of days as calendar programs exchange them (iCalendar, RFC 5545), by libical.
namespace ferrowind::icalendar {

using exchange::Revision;

/// One all-day event for each day. Its UID is made of the currency and the day alone, so that a program that
/// has read an earlier list changes its events; the same days and revision give the same text. Precondition:
/// each day has a currency.
[[nodiscard]] std::string WriteICalendarList(const exchange::DayList& list, const Revision& revision);

/// The days of the events, with the lines where these begin. `text` is UTF-8.
///
/// An event is taken for whole days when it is all-day or lasts from midnight to midnight in its own time
/// zone; any other one makes half days. One that repeats gives its days of the `wanted` years; without them
/// it must end. Cancelled events, and what is no event, are told and left out. What cannot be read is a
/// `exchange::ListError` that tells each line, and so is a file that breaks off.
[[nodiscard]] exchange::DayList ReadICalendarList(std::string_view text,
                                                  const std::optional<exchange::WantedYears>& wanted);

/// Both as the format of lists.
class ICalendar : public exchange::ICalendarFormat {
 public:
  [[nodiscard]] std::string Write(const exchange::DayList& list, const Revision& revision) const override {
    return WriteICalendarList(list, revision);
  }
  [[nodiscard]] exchange::DayList Read(std::string_view text,
                                       const std::optional<exchange::WantedYears>& wanted) const override {
    return ReadICalendarList(text, wanted);
  }
};

}  // namespace ferrowind::icalendar
