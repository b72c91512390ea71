#pragma once

#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ferrowind/adapters/headless/headless_button.h"
#include "ferrowind/adapters/headless/headless_grid.h"
#include "ferrowind/adapters/headless/headless_tool_bar.h"
#include "ferrowind/adapters/headless/world.h"
#include "ferrowind/control/default_headers.h"
#include "ferrowind/data/action_scope.h"
#include "ferrowind/data/module_state.h"
#include "ferrowind/views/holidays/fm_enter_holidays.h"

namespace ferrowind::testing {

using platform::Date;
using platform::Value;
using Rows = std::vector<std::vector<Value>>;

/// The Holidays window on the headless toolkit, over a scripted database. Make one on a fresh thread.
class HolidaysWorld {
 public:
  explicit HolidaysWorld(platform::ActionObserver* action_observer = nullptr)
      : world(action_observer), platform(world.Platform()) {
    AttachPlatform(platform);
    EnsureDictionaryObject();
    AddDefaultHolidayHeaders(*headers);
    using platform::ParameterType;
    world.commands.Answer("CldIUMain")
        .Takes("@TID1", ParameterType::kInt32)
        .Takes("@ID1", ParameterType::kInt32)
        .Takes("@ID2", ParameterType::kInt32)
        .Takes("@Year1", ParameterType::kInt32)
        .Takes("@Day1", ParameterType::kInt32)
        .Takes("@ODate", ParameterType::kDate);
    AnswerMarking(0);
    window = std::make_unique<fmEnterHolidays>(platform);
  }

  void AnswerMarking(std::int32_t return_value) {
    world.commands.Forget("CldIUCelebrate");
    world.commands.Answer("CldIUCelebrate")
        .Takes("@ID2", platform::ParameterType::kInt32)
        .Takes("@Del", platform::ParameterType::kInt16)
        .Returns(return_value);
  }

  static Rows UsualRules() {
    return {Rule(1, "Working day by exception", 1, {}, {}),
            Rule(2, "Saturday", 2, {}, 7),
            Rule(3, "Monday", 2, {}, 2),
            Rule(4, "Christmas Day", 3, Date(1999, 12, 25), {}),
            Rule(5, "Easter", 4, Date(2026, 4, 5), {}),
            Rule(6, "Old holiday", 3, Date(1999, 7, 4), {}, std::int16_t{2}),
            Rule(7, "Back again", 3, Date(1999, 8, 1), {}, std::int16_t{4})};
  }
  static std::vector<Value> Rule(std::int32_t id, const char* name, std::int32_t type, Value date,
                                 Value weekday, Value del = {}) {
    return {id, name, "", type, date, {}, {}, weekday, del};
  }

  /// Makes `CldAllInfo` answer with those rules from now on.
  void SetRules(Rows rules) {
    world.commands.Forget("CldAllInfo");
    world.commands.Answer("CldAllInfo")
        .Gives({"ID1", "Year1"}, {{978, 2026}})
        .Gives({"TID1", "Description1"},
               {{1, "Working day"}, {2, "Holiday"}, {3, "Celebration"}, {4, "Holiday point"}})
        .Gives({"ID2", "Name1", "Comment", "TID1", "D1", "MY", "MD", "WD", "Del"}, std::move(rules))
        .Gives({"FirstDay"}, {{1}});
  }

  /// As the Calendars window does it, within an action of its own.
  bool Init(std::int32_t mode, std::int32_t year = 2026, std::int32_t day_of_year = 100) {
    const ActionScope opening(platform.action_observer, platform::ActionKind::kOpenRules);
    return window->Init(headers, mode, year, 978, day_of_year);
  }
  bool InitWithUsualRules(std::int32_t mode) {
    SetRules(UsualRules());
    return Init(mode);
  }

  [[nodiscard]] headless::HeadlessForm& Form() const { return world.toolkit.FormNamed("fmEnterHolidays"); }
  [[nodiscard]] headless::HeadlessGrid& Grid() const {
    return Form().Part<headless::HeadlessGrid>("gexHolidays");
  }
  [[nodiscard]] headless::HeadlessButton& Action(int index) const {
    return Form().Part<headless::HeadlessButton>("cmdAction" + std::to_string(index));
  }
  /// The names on show, row by row.
  [[nodiscard]] std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (std::int32_t row = 1; row <= Grid().RowCount(); ++row) names.push_back(Grid().CellText(row, "Name"));
    return names;
  }
  [[nodiscard]] std::int32_t RowOf(const std::string& name) const {
    for (std::int32_t row = 1; row <= Grid().RowCount(); ++row) {
      if (Grid().CellText(row, "Name") == name) return row;
    }
    ADD_FAILURE() << name << " is not on show";
    return 1;
  }
  [[nodiscard]] std::vector<std::string> Messages() const {
    std::vector<std::string> texts;
    for (const auto& message : world.services->Messages()) texts.push_back(message.text);
    return texts;
  }
  /// Shows the window and lets `play` be the operator; hides it afterwards when it is still there.
  void Show(const std::function<void()>& play) {
    world.toolkit.ScriptModal("fmEnterHolidays", [&](headless::HeadlessForm& form) {
      play();
      if (form.IsShown()) form.Hide();
    });
    window->ShowModal();
  }
  void Answer(const std::string& dialog, const std::string& button) {
    world.toolkit.ScriptModal(dialog, [button](headless::HeadlessForm& form) {
      form.Part<headless::HeadlessButton>(button).Click();
    });
  }

  mutable headless::World world;
  platform::Platform platform;
  std::shared_ptr<GridFields> headers = std::make_shared<GridFields>();
  std::unique_ptr<fmEnterHolidays> window;
};

}  // namespace ferrowind::testing
