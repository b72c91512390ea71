#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/almanac/calendar_content.h"
#include "ferrowind/almanac/date_table.h"
#include "ferrowind/almanac/year_plan.h"
#include "ferrowind/planning/holiday_names.h"
#include "ferrowind/planning/year_overview.h"
#include "ferrowind/planning/year_planner.h"
#include "ferrowind/platform/values/date.h"

namespace ferrowind::planning {

/// What becomes of a day, of a calendar or of a rule book when days are closed as one holiday.
struct ClosingLine {
  enum class Kind : std::uint8_t {
    /// There is no such calendar, so that nothing of it can be closed.
    kNoCalendar,
    kDay,
    /// Whether the rule book of the calendar's currency gets the days.
    kBook,
  };

  Kind kind = Kind::kDay;
  /// Tells it from all other lines, also when the name is another: "978/126" for a day.
  std::string key;
  /// "EUR 2028".
  std::string calendar;
  /// Nothing where there is no choice.
  std::optional<bool> is_taken;
  /// For operators, without a full stop.
  std::string becomes;
  /// Whether somebody should look at it.
  bool is_warning = false;

  // Of a day only:
  std::optional<platform::Date> date;
  /// The name of a rule, with the day's own text; nothing for an ordinary working day.
  std::optional<std::string> now;
};

/// What came of closing days.
struct ClosingOutcome {
  /// How many days were closed, of all calendars together, and how many rule books have got them.
  std::size_t days = 0;
  std::size_t books = 0;
  /// Whether anything may have been changed: a call that failed may have come to its end all the same.
  bool may_have_changed = false;
  /// What was not done and why: sentences for operators, each with the name of its calendar or book.
  std::vector<std::string> problems;
};

/// Days of calendars that somebody is about to close as one holiday that was announced for once, such as a
/// day of mourning.
///
/// Open days are closed. Working days by exception stay open until somebody takes them: they were opened by a
/// person. One on a day that the rule book leaves open has opened nothing, and is closed as an open day is.
/// Closed days and calendars that do not exist stay as they are. A rule book gets the days that its plan
/// leaves open, each as a date of its own, since otherwise plans and the board would know better.
class HolidayClosing {
 public:
  /// Reads the rules and books of the calling thread's database; fails as database_call.h says. `tables` must
  /// outlive this.
  HolidayClosing(const almanac::DateTables& tables, YearOverview seen, std::vector<SelectedDays> days);
  HolidayClosing(const HolidayClosing&) = delete;
  HolidayClosing& operator=(const HolidayClosing&) = delete;

  /// What the holiday is called; at first nothing is.
  void SetName(const std::string& typed);
  /// What that means for the days that are taken.
  [[nodiscard]] HolidayName Name() const;
  /// The names that the days that are taken can be closed as, by the alphabet.
  [[nodiscard]] std::vector<std::string> KnownNames() const;

  /// Calendar by calendar, each with its days by date and its book behind them.
  [[nodiscard]] std::vector<ClosingLine> Lines() const;
  /// Changes nothing where the line leaves no choice.
  void Take(const std::string& key, bool is_taken) { decisions_[key] = is_taken; }
  /// What `Close` would do, in a sentence.
  [[nodiscard]] std::string Summary() const;
  /// Whether there is a name that days can be closed as, and a day to close.
  [[nodiscard]] bool CanClose() const;

  /// Closes the days that are taken, in one call a calendar, which is one entry of its history, and enters
  /// them in the books that are taken. A calendar that is not as it was seen any more is left as it is, and
  /// what fails for one currency keeps no other from being closed. Precondition: `CanClose`.
  [[nodiscard]] ClosingOutcome Close() const;

 private:
  /// The selected days of a calendar, and what its currency's book plans.
  struct Place {
    const YearOverview::Calendar* calendar = nullptr;
    std::vector<std::int16_t> days;
    std::optional<almanac::YearPlan> plan = {};
    /// Why there is no plan, without a full stop.
    std::string why_no_plan = {};
  };
  struct Entering {
    const Place* place = nullptr;
    std::vector<std::int16_t> days;
  };

  [[nodiscard]] Place PlaceOf(const SelectedDays& selected) const;
  [[nodiscard]] platform::Date DateOf(std::int16_t day) const;
  [[nodiscard]] std::string NameOf(const Place& place) const;
  /// Null for an ordinary working day.
  [[nodiscard]] static const almanac::MarkedDay* MarkOf(const Place& place, std::int16_t day);
  [[nodiscard]] static std::string KeyOf(const Place& place, const std::string& what);
  [[nodiscard]] bool IsTaken(const std::string& key, bool is_taken_at_first) const;
  [[nodiscard]] bool IsTaken(const Place& place, std::int16_t day) const;
  /// Whether the rule book knows of nothing that an exception there could open.
  [[nodiscard]] static bool IsOpenByBook(const Place& place, std::int16_t day);
  [[nodiscard]] std::vector<std::int16_t> TakenDays(const Place& place) const;
  /// Of all places.
  [[nodiscard]] std::vector<platform::Date> TakenDates() const;
  /// Those that the book can get.
  [[nodiscard]] std::vector<std::int16_t> DaysForBook(const Place& place) const;

  [[nodiscard]] ClosingLine LineOf(const Place& place, std::int16_t day) const;
  [[nodiscard]] ClosingLine BookLineOf(const Place& place) const;
  [[nodiscard]] std::string WhyNotInBook(const Place& place) const;

  [[nodiscard]] bool CloseDaysOf(const Place& place, ClosingOutcome& outcome) const;
  void EnterInBooks(const std::vector<Entering>& entering, ClosingOutcome& outcome) const;

  const almanac::DateTables& tables_;
  YearOverview seen_;
  YearPlanner planner_;
  HolidayNames names_;
  std::vector<Place> places_;
  /// As it is for no day: `Name` looks at those that are taken.
  HolidayName name_;
  /// By key, of the lines about which somebody has decided.
  std::map<std::string, bool> decisions_;
};

}  // namespace ferrowind::planning
