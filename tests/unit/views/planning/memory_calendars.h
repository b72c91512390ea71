#pragma once

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "ferrowind/adapters/headless/headless_button.h"
#include "ferrowind/adapters/headless/headless_drop_down_list.h"
#include "ferrowind/adapters/headless/headless_form.h"
#include "ferrowind/adapters/headless/headless_grid.h"
#include "ferrowind/adapters/headless/headless_label.h"
#include "ferrowind/adapters/headless/headless_text_box.h"
#include "ferrowind/adapters/headless/headless_tool_bar.h"
#include "ferrowind/adapters/headless/headless_tree.h"
#include "ferrowind/adapters/headless/world.h"
#include "ferrowind/control/default_headers.h"
#include "ferrowind/data/exec_proc.h"
#include "ferrowind/data/module_state.h"
#include "ferrowind/platform/values/date.h"
#include "ferrowind/views/calendars/fm_calendar.h"
#include "ferrowind/views/planning/planning_additions.h"

#include "tests/support/run_in_fresh_thread.h"

namespace ferrowind::testing {

/// A Calendars window with the additions of planning over a database in memory, with the calendars EUR 2027
/// and 2028, the rules Sunday (2) and Good Friday (3), and Good Friday on 14 April 2028, the day 105. Make
/// one on a fresh thread.
class MemoryCalendars {
 public:
  using Arguments = std::initializer_list<std::pair<const char*, platform::Value>>;

  MemoryCalendars() {
    platform.additions = &additions;
    platform.change_watches = &world.ChangeWatches();
    AttachPlatform(platform);
    EnsureDictionaryObject();
    static_cast<void>(SharedServicesObject());
    world.toolkit.AddAnimation("/component/Progress.pra");
    AddDefaultHeaders(*headers);
    AddDefaultHolidayHeaders(*holiday_headers);
    Call("CldIUCelebrate", {{"Name1", "Sunday"}, {"TID1", 2}, {"WD", 1}});
    Call("CldIUCelebrate",
         {{"Name1", "Good Friday"}, {"TID1", 4}, {"D1", platform::Date(2028, 4, 14)}, {"MY", 4}, {"MD", 14}});
    for (const std::int32_t year : {2027, 2028}) Call("CldIUMain", {{"ID1", 978}, {"Year1", year}});
    Assign(4, 3, platform::Date(2028, 4, 14));
  }
  ~MemoryCalendars() {
    if (window) window->ForceClosing();
  }
  MemoryCalendars(const MemoryCalendars&) = delete;
  MemoryCalendars& operator=(const MemoryCalendars&) = delete;

  void Call(const std::string& procedure, Arguments arguments) {
    SourceValues parameters;
    for (const auto& [name, value] : arguments) parameters.Add(name, value);
    std::shared_ptr<SourceValues> results;
    EXPECT_EQ(ExecProc(procedure, &parameters, results), 0) << procedure;
  }
  void Assign(std::int32_t type, std::int32_t rule, const platform::Date& date) {
    Call("CldIUMain", {{"ID1", 978},
                       {"Year1", date.Year()},
                       {"TID1", type},
                       {"ID2", rule},
                       {"Day1", date.DayOfYear()},
                       {"ODate", date}});
  }
  /// Everything that is called from now on is somebody else's.
  void ActAs(const std::string& user) { world.database->SetUser(user); }

  void Open() {
    window = fmCalendar::Create(platform);
    form_ = &world.toolkit.FormNamed("fmCalendar");
    ASSERT_TRUE(window->Init(headers, holiday_headers));
    window->Show();
  }
  void OpenAt(std::int32_t year) {
    Open();
    if (!Tree().Expanded("K978")) Tree().ToggleNode("K978");
    Tree().ClickNode("K978_" + std::to_string(year));
    ASSERT_EQ(Grid().RowCount(), platform::DaysInYear(year));
  }
  void Close() {
    EXPECT_TRUE(window->ForceClosing());
    window.reset();
  }

  template <typename Kind>
  [[nodiscard]] Kind& Part(const std::string& name) const {
    return form_->Part<Kind>(name);
  }
  [[nodiscard]] headless::HeadlessForm& Form() const { return *form_; }
  [[nodiscard]] headless::HeadlessTree& Tree() const { return Part<headless::HeadlessTree>("tvCalendar"); }
  [[nodiscard]] headless::HeadlessGrid& Grid() const { return Part<headless::HeadlessGrid>("gexCalendar"); }
  [[nodiscard]] headless::HeadlessToolBar& Tools() const { return Part<headless::HeadlessToolBar>("ssatb"); }
  [[nodiscard]] std::string LabelText(const std::string& name) const {
    return Part<headless::HeadlessLabel>(name).Text();
  }
  [[nodiscard]] bool IsShown(const std::string& panel) const { return form_->ControlNamed(panel).Visible(); }
  /// The dates of the rows on show, as ISO 8601 has them.
  [[nodiscard]] std::vector<std::string> Dates() const {
    std::vector<std::string> dates;
    for (std::int32_t row = 1; row <= Grid().RowCount(); ++row) {
      if (Grid().RowBookmark(row) != 0)
        dates.push_back(Grid().CellValue(row, "FullDate").If<platform::Date>()->ToIso());
    }
    return dates;
  }
  [[nodiscard]] std::string CurrentDate() const {
    const platform::Value date = Grid().CellValue(Grid().CurrentRow(), "FullDate");
    return date.IsEmpty() ? "" : date.If<platform::Date>()->ToIso();
  }

  headless::World world;
  platform::Platform platform = world.PlatformOnMemory();
  almanac::DateTables tables;
  PlanningWindows windows{platform, tables};
  PlanningAdditions additions{{platform, tables, windows}};
  std::shared_ptr<GridFields> headers = std::make_shared<GridFields>();
  std::shared_ptr<GridFields> holiday_headers = std::make_shared<GridFields>();
  std::shared_ptr<fmCalendar> window;

 private:
  headless::HeadlessForm* form_ = nullptr;
};

}  // namespace ferrowind::testing
