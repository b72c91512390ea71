#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "ferrowind/control/grid_fields.h"
#include "ferrowind/platform/platform.h"
#include "ferrowind/platform/values/value.h"
#include "ferrowind/views/calendars/day_grid.h"
#include "ferrowind/views/holidays/holidays_window.h"

namespace ferrowind {

/// The commands that change a calendar. Meant for a selected calendar node with a current grid row. Those on
/// a day fail, and change nothing, while the grid shows the days of another node than the selected one.
class DayCommands {
 public:
  /// What the commands need of the Calendars window; all must outlive them.
  struct Window {
    platform::Tree& tree;
    platform::Grid& grid;
    const DayGrid& days;
    std::function<void()> show_days_of_selected_node;
    std::function<void(std::int32_t currency_id, std::int32_t year)> refresh_and_select;
    std::function<std::shared_ptr<HolidaysWindow>()> create_holidays_window;
    /// The operator has created that calendar, which is selected now.
    std::function<void(const platform::CalendarOnShow& calendar)> on_created;
  };

  DayCommands(const platform::Platform& platform, Window window);

  void SetHolidayHeaders(std::shared_ptr<GridFields> holiday_headers);

  /// Makes the current row's day a working day by exception. What the database answers is not examined, by
  /// intention: a failure stays pending in the gateway, and only the host's observer is told.
  void ExceptDay(const std::string& message);
  /// Asks for the message first.
  void ExceptDayWithMessage();
  /// Opens the Holidays window for the current row's day in that mode.
  void AssignHolidays(std::int32_t mode);
  /// Creates a calendar for the currency of the selected node; does nothing without one.
  void CreateNewCalendar();

  /// Closes the Holidays window that `AssignHolidays` has open. False when it refuses; true when there is
  /// none.
  bool ForceCloseHolidaysWindow();

 private:
  /// The calendar that the operator has created, if it could be stored.
  [[nodiscard]] std::optional<platform::CalendarOnShow> AskForNewCalendar(const std::string& node);

  /// The day that a command starts on.
  struct SelectedDay {
    platform::Value date;
    std::int32_t day_of_year;
    std::int32_t year;
    std::int32_t currency_id;
  };

  [[nodiscard]] SelectedDay TakeSelectedDay() const;
  /// The selected node, whose days are on show.
  [[nodiscard]] std::string TakeSelectedNode() const;
  void DescribeSelectedDay(platform::OperatorAction& action) const;

  const platform::Platform& platform_;
  Window window_;
  std::shared_ptr<GridFields> holiday_headers_;
  std::shared_ptr<HolidaysWindow> holidays_window_;
};

}  // namespace ferrowind
