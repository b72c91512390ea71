#pragma once

#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "ferrowind/adapters/headless/headless_form.h"
#include "ferrowind/adapters/headless/headless_grid.h"
#include "ferrowind/adapters/headless/headless_table.h"
#include "ferrowind/adapters/headless/headless_text_view.h"
#include "ferrowind/adapters/headless/headless_tool_bar.h"
#include "ferrowind/adapters/headless/headless_tree.h"
#include "ferrowind/control/default_headers.h"
#include "ferrowind/views/calendars/fm_calendar.h"
#include "ferrowind/views/planning/planning_additions.h"

#include "tests/unit/planning/euro_world.h"

namespace ferrowind::testing {

/// The Calendars window with the additions of planning, over the database in memory of `EuroWorld` with the
/// calendars EUR 2027 and 2028. Make one on a fresh thread.
class PlannedWindow : public planning::EuroWorld {
 public:
  PlannedWindow() {
    platform.additions = &additions;
    AddYear(2027);
    AddYear(2028);
    AddDefaultHeaders(*headers);
    AddDefaultHolidayHeaders(*holiday_headers);
  }

  /// Opens the window and forgets the calls so far.
  void Open() {
    window = fmCalendar::Create(platform);
    ASSERT_TRUE(window->Init(headers, holiday_headers));
    window->Show();
    world.log.Clear();
  }
  /// The operator selects EUR 2028 and the row of a day in it.
  void OpenAt(const platform::Date& day) {
    Open();
    Tree().ToggleNode("K978");
    Tree().ClickNode("K978_2028");
    ClickDay(day);
  }
  void ClickDay(const platform::Date& day) { Grid().ClickRow(day.DayOfYear()); }
  void Close() { EXPECT_TRUE(window->ForceClosing()); }

  [[nodiscard]] headless::HeadlessForm& Form() { return world.toolkit.FormNamed("fmCalendar"); }
  template <typename Kind>
  [[nodiscard]] Kind& Part(const std::string& name) {
    return Form().Part<Kind>(name);
  }
  [[nodiscard]] headless::HeadlessTree& Tree() { return Part<headless::HeadlessTree>("tvCalendar"); }
  [[nodiscard]] headless::HeadlessGrid& Grid() { return Part<headless::HeadlessGrid>("gexCalendar"); }
  [[nodiscard]] headless::HeadlessToolBar& Tools() { return Part<headless::HeadlessToolBar>("ssatb"); }

  almanac::DateTables tables;
  PlanningWindows windows{platform, tables};
  PlanningAdditions additions{{platform, tables, windows}};
  std::shared_ptr<GridFields> headers = std::make_shared<GridFields>();
  std::shared_ptr<GridFields> holiday_headers = std::make_shared<GridFields>();
  std::shared_ptr<fmCalendar> window;
};

}  // namespace ferrowind::testing
