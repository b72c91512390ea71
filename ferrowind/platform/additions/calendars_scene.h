#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "ferrowind/export.h"
#include "ferrowind/platform/toolkit/form.h"
#include "ferrowind/platform/toolkit/grid.h"
#include "ferrowind/platform/toolkit/status_bar.h"
#include "ferrowind/platform/toolkit/tool_bar.h"
#include "ferrowind/platform/toolkit/tree.h"
#include "ferrowind/platform/values/date.h"

namespace ferrowind::platform {

/// A calendar that a window works on.
struct FERROWIND_EXPORT CalendarOnShow {
  ///@{
  /// The number of its currency, and its code as the window shows it.
  std::int32_t currency_id = 0;
  std::string currency;
  ///@}
  /// The year of its days.
  std::int32_t year = 0;
  /// The same calendar.
  friend bool operator==(const CalendarOnShow&, const CalendarOnShow&) = default;
};

/// The Calendars window as its additions see it. It outlives them. To be used on the user-interface thread;
/// what a method does not say to fail with reaches the operator as any failure of the window does.
class FERROWIND_EXPORT CalendarsScene {
 public:
  virtual ~CalendarsScene() = default;

  /// The window itself, shown or not yet.
  [[nodiscard]] virtual Form& Window() = 0;
  /// The tree of the currencies and their calendars.
  [[nodiscard]] virtual Tree& Currencies() = 0;
  /// The grid of the days. Its given columns are found by their keys, such as "FullDate".
  [[nodiscard]] virtual Grid& Days() = 0;
  /// The window's tool bar, where its own tools and those of the additions stand.
  [[nodiscard]] virtual ToolBar& Tools() = 0;
  /// The panels at the window's foot.
  [[nodiscard]] virtual StatusBar& Bar() = 0;

  /// The calendar whose days the grid shows; nothing while it shows none.
  [[nodiscard]] virtual std::optional<CalendarOnShow> OnShow() const = 0;
  /// The number of the currency whose node, or whose calendar's, is chosen in the tree; nothing without a
  /// node.
  [[nodiscard]] virtual std::optional<std::int32_t> ChosenCurrency() const = 0;
  /// The day of the grid's current row; nothing on a group row, and without a row.
  [[nodiscard]] virtual std::optional<Date> CurrentDay() const = 0;

  /// Shows the days of that calendar as if the operator had chosen it. The calendars are read anew when it is
  /// not among those in the tree; nothing is on show afterwards when the database has it not either.
  virtual void Choose(std::int32_t currency_id, std::int32_t year) = 0;
  /// What the tool "Refresh" does.
  virtual void Refresh() = 0;
  /// Shows the popup menu of the grid's current row, as a click with the right mouse button does; nothing
  /// without a row.
  virtual void ShowDayMenu() = 0;
};

}  // namespace ferrowind::platform
