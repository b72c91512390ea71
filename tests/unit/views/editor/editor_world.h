#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "ferrowind/adapters/headless/headless_button.h"
#include "ferrowind/adapters/headless/headless_date_picker.h"
#include "ferrowind/adapters/headless/headless_drop_down_list.h"
#include "ferrowind/adapters/headless/headless_text_box.h"
#include "ferrowind/adapters/headless/world.h"
#include "ferrowind/control/default_headers.h"
#include "ferrowind/data/module_state.h"
#include "ferrowind/views/editor/fm_add_holiday.h"

namespace ferrowind::testing {

using platform::Date;
using platform::Value;

/// The holiday editor on the headless toolkit, with the four holiday types of a database. Make one on a fresh
/// thread.
class EditorWorld {
 public:
  explicit EditorWorld(platform::ActionObserver* action_observer = nullptr)
      : world(action_observer), platform(world.Platform()) {
    AttachPlatform(platform);
    EnsureDictionaryObject();
    AddDefaultHolidayHeaders(*column_map);
    AnswerWith(0);
    editor = std::make_unique<fmAddHoliday>(platform);
  }

  /// From now on saving is answered with that return value.
  void AnswerWith(std::int32_t return_value) {
    using platform::ParameterType;
    world.commands.Forget("CldIUCelebrate");
    world.commands.Answer("CldIUCelebrate")
        .Takes("@Name1", ParameterType::kText)
        .Takes("@Comment", ParameterType::kText)
        .Takes("@TID1", ParameterType::kInt32)
        .Takes("@WD", ParameterType::kInt16)
        .Takes("@D1", ParameterType::kDate)
        .Takes("@MY", ParameterType::kInt16)
        .Takes("@MD", ParameterType::kInt16)
        .Takes("@ID2", ParameterType::kInt32)
        .Returns(return_value);
  }

  bool InitToAdd(std::int32_t first_weekday = 1) {
    return editor->Init(kAddRule, types, first_weekday, nullptr, nullptr);
  }
  bool InitToEdit(std::vector<Value> rule, std::int32_t first_weekday = 1) {
    row = std::make_shared<platform::RecordSet>(
        std::vector<std::string>{"ID2", "Name1", "Comment", "TID1", "D1", "MY", "MD", "WD", "Del"},
        std::vector<std::vector<Value>>{std::move(rule)});
    return editor->Init(kEditRule, types, first_weekday, row, column_map);
  }

  [[nodiscard]] headless::HeadlessForm& Form() const { return world.toolkit.FormNamed("fmAddHoliday"); }
  template <typename Kind>
  [[nodiscard]] Kind& Part(const std::string& name) const {
    return Form().Part<Kind>(name);
  }
  [[nodiscard]] headless::HeadlessDropDownList& Types() const {
    return Part<headless::HeadlessDropDownList>("cmbHolidayType");
  }
  [[nodiscard]] headless::HeadlessDropDownList& Weekdays() const {
    return Part<headless::HeadlessDropDownList>("cmbDayOfWeek");
  }
  [[nodiscard]] headless::HeadlessTextBox& NameBox() const {
    return Part<headless::HeadlessTextBox>("txtName");
  }
  [[nodiscard]] headless::HeadlessTextBox& CommentBox() const {
    return Part<headless::HeadlessTextBox>("txtComment");
  }
  [[nodiscard]] headless::HeadlessDatePicker& FullDate() const {
    return Part<headless::HeadlessDatePicker>("dtpFullDate");
  }
  [[nodiscard]] headless::HeadlessDatePicker& HolidayPoint() const {
    return Part<headless::HeadlessDatePicker>("dtpHolidayPoint");
  }
  [[nodiscard]] bool IsEnabled(const std::string& control) const {
    return Form().ControlNamed(control).Enabled();
  }
  [[nodiscard]] bool IsVisible(const std::string& control) const {
    return Form().ControlNamed(control).Visible();
  }
  [[nodiscard]] std::vector<std::string> Messages() const {
    std::vector<std::string> texts;
    for (const auto& message : world.services->Messages()) texts.push_back(message.text);
    return texts;
  }
  /// Shows the dialog and lets `play` be the operator.
  void Show(const headless::ModalScript& play) {
    world.toolkit.ScriptModal("fmAddHoliday", play);
    editor->ShowModal();
  }
  void ClickOk() {
    Show([](headless::HeadlessForm& form) { form.Part<headless::HeadlessButton>("cmdOk").Click(); });
  }

  mutable headless::World world;
  platform::Platform platform;
  std::shared_ptr<platform::RecordSet> types = std::make_shared<platform::RecordSet>(
      std::vector<std::string>{"TID1", "Description1"},
      std::vector<std::vector<Value>>{
          {1, "Working day"}, {2, "Holiday"}, {3, "Celebration"}, {4, "Holiday point"}});
  std::shared_ptr<GridFields> column_map = std::make_shared<GridFields>();
  std::shared_ptr<platform::RecordSet> row;
  std::unique_ptr<fmAddHoliday> editor;
};

}  // namespace ferrowind::testing
