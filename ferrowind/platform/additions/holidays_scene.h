#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "ferrowind/export.h"
#include "ferrowind/platform/additions/calendars_scene.h"
#include "ferrowind/platform/toolkit/form.h"
#include "ferrowind/platform/toolkit/grid.h"
#include "ferrowind/platform/toolkit/tool_bar.h"
#include "ferrowind/platform/values/date.h"
#include "ferrowind/platform/values/value.h"

namespace ferrowind::platform {

/// A rule that the operator has chosen, as the window's list holds it; each value possibly empty.
struct FERROWIND_EXPORT ChosenRule {
  /// The rule's number.
  Value id;
  /// The number of its holiday type: 2 holiday, 3 celebration, 4 holiday point.
  Value type;
  /// The rule's name as the list shows it.
  Value name;
  /// The date that the rule is kept with, of whatever year; a weekday rule has none.
  Value date;
  /// 1 for the first weekday of the database to 7, for a weekday rule.
  Value weekday;
};

/// The Holidays window as its additions see it. It outlives them. To be used on the user-interface thread.
class FERROWIND_EXPORT HolidaysScene {
 public:
  virtual ~HolidaysScene() = default;

  /// The window itself, shown or not yet.
  [[nodiscard]] virtual Form& Window() = 0;
  /// The list of the rules. Its given columns are found by their keys, such as "ID_Holiday".
  [[nodiscard]] virtual Grid& Rules() = 0;
  /// The window's tool bar, where its own tools and those of the additions stand.
  [[nodiscard]] virtual ToolBar& Tools() = 0;

  /// The calendar that rules are assigned to.
  [[nodiscard]] virtual const CalendarOnShow& Target() const = 0;
  /// The day that rules are assigned to; nothing when it is the whole calendar.
  [[nodiscard]] virtual std::optional<Date> TargetDay() const = 0;
  /// 1 Sunday to 7 Saturday: the first weekday of the database; 0 before the rules were read.
  [[nodiscard]] virtual std::int32_t FirstWeekday() const = 0;

  /// Reads the rules anew.
  virtual void Reload() = 0;
};

}  // namespace ferrowind::platform
