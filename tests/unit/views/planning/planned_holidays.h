#pragma once

#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ferrowind/adapters/headless/headless_button.h"
#include "ferrowind/adapters/headless/headless_form.h"
#include "ferrowind/adapters/headless/headless_grid.h"
#include "ferrowind/adapters/headless/headless_table.h"
#include "ferrowind/adapters/headless/headless_text_view.h"
#include "ferrowind/adapters/headless/headless_tool_bar.h"
#include "ferrowind/control/default_headers.h"
#include "ferrowind/views/holidays/fm_enter_holidays.h"
#include "ferrowind/views/planning/planning_additions.h"

#include "tests/unit/planning/euro_world.h"

namespace ferrowind::testing {

/// The Holidays window for EUR 2028 with the additions of planning, over the database in memory of
/// `EuroWorld`, which has the rule "Independence Day" (7) of the book of USD, too. Make one on a fresh
/// thread.
class PlannedHolidays : public planning::EuroWorld {
 public:
  PlannedHolidays() {
    platform.additions = &additions;
    AddYear(2028);
    headless::MemoryRule rule{.name = "Independence Day", .type = 3};
    rule.date = platform::Date(2026, 7, 4);
    rule.month = std::int16_t{7};
    rule.day = std::int16_t{4};
    Tables().rules[7] = rule;
    AddBook(840, {"Independence Day", 3, "07-04", {}, {}});
    AddDefaultHolidayHeaders(*headers);
  }

  bool Init(std::int32_t mode, const platform::Date& day = platform::Date(2028, 4, 14)) {
    if (!window) MakeWindow();
    return window->Init(headers, mode, day.Year(), kEuro, day.DayOfYear());
  }
  void MakeWindow() {
    window = std::make_unique<fmEnterHolidays>(
        platform, [](const auto& work) { work(); }, "EUR");
  }
  /// Shows the window and lets `play` be the operator.
  void Show(const std::function<void()>& play) {
    world.toolkit.ScriptModal("fmEnterHolidays", [&](headless::HeadlessForm& form) {
      play();
      if (form.IsShown()) form.Hide();
    });
    window->ShowModal();
  }
  [[nodiscard]] headless::HeadlessForm& Form() { return world.toolkit.FormNamed("fmEnterHolidays"); }
  [[nodiscard]] headless::HeadlessGrid& Grid() { return Form().Part<headless::HeadlessGrid>("gexHolidays"); }
  [[nodiscard]] headless::HeadlessToolBar& Tools() { return Form().Part<headless::HeadlessToolBar>("ssatb"); }
  /// The names on show, row by row.
  [[nodiscard]] std::vector<std::string> Names() {
    std::vector<std::string> names;
    for (std::int32_t row = 1; row <= Grid().RowCount(); ++row) names.push_back(Grid().CellText(row, "Name"));
    return names;
  }
  [[nodiscard]] std::int32_t RowOf(const std::string& name) {
    const auto names = Names();
    const auto found = std::find(names.begin(), names.end(), name);
    EXPECT_NE(found, names.end()) << name << " is not on show";
    return static_cast<std::int32_t>(found - names.begin()) + 1;
  }
  void Assign(const std::string& rule) {
    Grid().ClickRow(RowOf(rule));
    Form().Part<headless::HeadlessButton>("cmdAction5").Click();
  }
  /// The rule of a day of EUR 2028; nothing on an ordinary working day.
  [[nodiscard]] std::optional<std::int32_t> RuleOn(const platform::Date& day) {
    return Tables().calendars.at({kEuro, 2028})[static_cast<std::size_t>(day.DayOfYear()) - 1].rule;
  }

  almanac::DateTables tables;
  PlanningWindows windows{platform, tables};
  PlanningAdditions additions{{platform, tables, windows}};
  std::shared_ptr<GridFields> headers = std::make_shared<GridFields>();
  std::unique_ptr<fmEnterHolidays> window;
};

}  // namespace ferrowind::testing
