#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/export.h"
#include "ferrowind/platform/events/subscription.h"
#include "ferrowind/platform/toolkit/control.h"

namespace ferrowind::platform {

/// The colour of a day's ground; what it is exactly follows the theme.
enum class FERROWIND_EXPORT DayTint : std::uint8_t { kNone, kGrey, kRed, kViolet, kGreen, kAmber };

/// The mark on a day, apart from the others without any colour.
enum class FERROWIND_EXPORT DayShape : std::uint8_t { kNone, kBar, kSquare, kDiamond, kTriangle, kHatching };

/// How a day looks. Every meaning should have a shape or a letter of its own.
struct FERROWIND_EXPORT DayLook {
  /// What it means must be told without the colour as well.
  DayTint tint = DayTint::kNone;
  /// Beside the letter, what tells the meaning to those who see no colours.
  DayShape shape = DayShape::kNone;
  /// At most two characters, which stand beside the day's number.
  std::string letter;

  /// Same tint, shape and letter.
  friend bool operator==(const DayLook&, const DayLook&) = default;
};

/// A day that is not an ordinary one.
struct FERROWIND_EXPORT YearDay {
  /// 1 to 366.
  std::int16_t day_of_year = 0;
  /// In place of the plain look of ordinary days.
  DayLook look;
  /// What tooltips and assistive tools say of the day behind its date: "Good Friday, closed".
  std::string description;
};

/// What is noted of a month of a calendar.
struct FERROWIND_EXPORT MonthNote {
  /// A few characters: "20".
  std::string text;
  /// The same in full: "20 working days, 8 weekend days, 2 holidays".
  std::string description;
};

/// One calendar of the year on show.
struct FERROWIND_EXPORT YearCalendar {
  /// Not empty, and no other calendar's.
  std::string key;
  /// A few characters, such as "EUR".
  std::string caption;
  /// The calendar in full, for assistive tools.
  std::string description;
  /// The days that look otherwise than an ordinary one or are described otherwise; ascending, each once, all
  /// in the year.
  std::vector<YearDay> days;
  /// The description of all others.
  std::string ordinary;
  /// Of January to December.
  std::array<MonthNote, 12> months;
};

/// A line of the legend.
struct FERROWIND_EXPORT YearLegendEntry {
  /// Shown as a day of that look.
  DayLook look;
  /// What the look means.
  std::string text;
};

/// A line of the list that printed pages have below the months.
struct FERROWIND_EXPORT YearNote {
  /// 1 to 366.
  std::int16_t day_of_year = 0;
  /// What is noted of the day, behind its date; a long one wraps.
  std::string text;
};

/// What a year view shows.
struct FERROWIND_EXPORT YearContent {
  /// 1 to 9999.
  int year = 2000;
  /// The day that is today, when it is in the year.
  std::optional<std::int16_t> today;
  /// One is shown as twelve months of weeks, several as twelve months with a row for each calendar.
  std::vector<YearCalendar> calendars;
  /// Of the looks that the days have, in the order in which they are listed.
  std::vector<YearLegendEntry> legend;
  /// Ascending by day.
  std::vector<YearNote> notes;
  /// A line that printed pages have below their heading.
  std::string summary;
};

/// A day of a calendar on show.
struct FERROWIND_EXPORT YearCell {
  /// The calendar's key.
  std::string calendar;
  /// 1 to 366.
  std::int16_t day_of_year = 0;

  /// The same day of the same calendar.
  friend bool operator==(const YearCell&, const YearCell&) = default;
};

/// The kinds of file that pages are written as.
enum class FERROWIND_EXPORT PageFile : std::uint8_t { kPdf, kPng };

/// A year at a glance: all days of one calendar or of several, of which the operator selects some.
///
/// Weeks begin as the locale says. The operator goes from day to day with the arrow keys (up and down: a
/// week, or to the neighbouring calendar), to the ends of the month with Home and End, of the year with Ctrl,
/// and from month to month with the page keys; Shift, Ctrl and drags select several days. Of one calendar a
/// range is all days from one end to the other, of several the days of all calendars between both ends.
class FERROWIND_EXPORT YearView : public Control {
 public:
  /// Replaces what is shown. The current and the selected days stay where their calendars still are: in
  /// another year the current day goes to the same date (29 February to 28 February) and is the only selected
  /// one. When there is no current day, today of the first calendar becomes it, else 1 January. Raises the
  /// change events for what becomes another. A content that is not as described is the failure Invalid
  /// argument, and the old one stays.
  virtual void SetContent(YearContent content) = 0;

  /// Nothing while there is no calendar.
  [[nodiscard]] virtual std::optional<YearCell> Current() const = 0;
  /// Makes the day the current and only selected one, and brings it into sight. A day that is not on show is
  /// the failure Element not found (35601).
  virtual void SetCurrent(const YearCell& cell) = 0;
  /// By calendar and day; the current day need not be among them.
  [[nodiscard]] virtual std::vector<YearCell> Selected() const = 0;

  /// Writes what is shown, with `heading` above and its notes below, onto pages of paper or into one picture.
  /// The file is there as a whole or as it was: one that cannot be written is a failure that names it and
  /// says why. `path` is UTF-8.
  virtual void SavePages(PageFile kind, const std::string& path, const std::string& heading) = 0;
  /// Lets the operator choose a printer, and prints the same pages. False when he chose none. Fails as
  /// `Form::ShowModal` does, and when the printer does.
  virtual bool PrintPages(const std::string& heading) = 0;

  /// Another day is the current one.
  [[nodiscard]] virtual Subscription OnCurrentChange(std::function<void()> handler) = 0;
  /// Other days are selected; raised after `OnCurrentChange` when that changed, too.
  [[nodiscard]] virtual Subscription OnSelectionChange(std::function<void()> handler) = 0;
  /// Enter or a double click on the current day.
  [[nodiscard]] virtual Subscription OnActivate(std::function<void()> handler) = 0;
  /// The right mouse button on a day, or the menu key. A day clicked outside the selection has become the
  /// current and only selected one by then.
  [[nodiscard]] virtual Subscription OnMenuAsked(std::function<void()> handler) = 0;
};

}  // namespace ferrowind::platform
