#include <map>
#include <utility>

#include "ferrowind/adapters/headless/headless_animation.h"
#include "ferrowind/adapters/headless/headless_button.h"
#include "ferrowind/adapters/headless/headless_date_picker.h"
#include "ferrowind/adapters/headless/headless_drop_down_list.h"
#include "ferrowind/adapters/headless/headless_grid.h"
#include "ferrowind/adapters/headless/headless_table.h"
#include "ferrowind/adapters/headless/headless_text_box.h"
#include "ferrowind/adapters/headless/headless_tool_bar.h"
#include "ferrowind/adapters/headless/headless_tree.h"
#include "ferrowind/adapters/headless/headless_up_down.h"
#include "ferrowind/adapters/headless/headless_year_view.h"
#include "ferrowind/adapters/headless/world.h"

#include "tests/contract/toolkit/toolkit_under_test.h"

namespace ferrowind::contract {
namespace {

using namespace headless;  // NOLINT: every second word here is one of its names.

/// The headless control behind a port.
template <typename Kind, typename Port>
Kind& As(Port& port) {
  return dynamic_cast<Kind&>(port);
}

class HeadlessToolkitUnderTest : public ToolkitUnderTest {
 public:
  HeadlessToolkitUnderTest() {
    world_.toolkit.PlaceInside("fmContract", "fraBox", {"txtInside"});
    world_.toolkit.RemoveLayout("fmNowhere");
    world_.toolkit.AddAnimation("/component/Progress.pra");
  }

  [[nodiscard]] platform::Toolkit& Toolkit() override { return world_.toolkit; }
  [[nodiscard]] std::string AnimatedImage() override { return "/component/Progress.pra"; }

  void ShowModal(platform::Form& form, std::function<void()> operator_script) override {
    world_.toolkit.ScriptModal(form.Name(),
                               [script = std::move(operator_script)](HeadlessForm&) { script(); });
    form.ShowModal();
  }
  void CloseByFrame(platform::Form& form) override { As<HeadlessForm>(form).CloseByOperator(); }
  void ResizeByFrame(platform::Form& form, float width, float height) override {
    As<HeadlessForm>(form).ResizeByOperator(width, height);
  }
  void Minimise(platform::Form& form) override { As<HeadlessForm>(form).MinimiseByOperator(); }
  [[nodiscard]] bool IsMinimised(platform::Form& form) override {
    return As<HeadlessForm>(form).IsMinimised();
  }
  void PressEnter(platform::Form& form) override { As<HeadlessForm>(form).PressEnter(); }
  void PressEscape(platform::Form& form) override { As<HeadlessForm>(form).PressEscape(); }

  void Wait(std::int32_t milliseconds) override { world_.toolkit.Advance(milliseconds); }

  [[nodiscard]] std::optional<std::string> AskForFile(const std::optional<std::string>& name) override {
    // The headless operator is asked for what the dialog makes of their answer.
    world_.toolkit.AnswerNextFile(name && name->find('.') == std::string::npos ? *name + ".pdf" : name);
    return world_.toolkit.ChooseFileToSave("Save the year", "EUR 2027",
                                           {{"PDF document", "pdf"}, {"PNG picture", "png"}});
  }

  [[nodiscard]] std::optional<std::string> AskForFileToRead(const std::optional<std::string>& name) override {
    // As above: a file that is not there is none that the dialog gives.
    world_.toolkit.AnswerNextFile(name == "days.ics" ? name : std::nullopt);
    return world_.toolkit.ChooseFileToOpen("Open a list", "Lists of days", {"ics", "csv"});
  }

  void Click(platform::Button& button) override {
    // The headless operator refuses what a real one tries in vain.
    if (button.Enabled()) As<HeadlessButton>(button).Click();
  }
  void TypeText(platform::TextBox& text_box, const std::string& text) override {
    As<HeadlessTextBox>(text_box).TypeText(text);
  }
  void PressTextKeys(platform::Form& form, const std::string& text) override {
    As<HeadlessForm>(form).TypeText(text);
  }
  void Choose(platform::DropDownList& list, const std::string& item) override {
    As<HeadlessDropDownList>(list).ChooseByOperator(item);
  }
  void PickDate(platform::DatePicker& picker, const platform::Date& date) override {
    As<HeadlessDatePicker>(picker).PickDate(date);
  }
  void TypeNoDate(platform::DatePicker& picker) override {
    As<HeadlessDatePicker>(picker).TypeNoDate("31 Foo");
  }
  [[nodiscard]] bool ShowsRefusal(platform::DatePicker& picker) override {
    return !As<HeadlessDatePicker>(picker).RefusedText().empty();
  }
  void StepUp(platform::UpDown& up_down) override { As<HeadlessUpDown>(up_down).StepUp(); }
  void StepDown(platform::UpDown& up_down) override { As<HeadlessUpDown>(up_down).StepDown(); }

  void ClickNode(platform::Tree& tree, const std::string& key) override {
    As<HeadlessTree>(tree).ClickNode(key);
  }
  void ToggleNode(platform::Tree& tree, const std::string& key) override {
    As<HeadlessTree>(tree).ToggleNode(key);
  }

  void ClickTool(platform::ToolBar& tool_bar, const std::string& id) override {
    As<HeadlessToolBar>(tool_bar).ClickTool(id);
  }
  void PressShortcut(platform::Form& form, const std::string& shortcut) override {
    As<HeadlessForm>(form).PressShortcut(shortcut);
  }
  void EnterTool(platform::ToolBar& tool_bar, const std::string& id) override {
    As<HeadlessToolBar>(tool_bar).EnterTool(id);
  }
  void LeaveTool(platform::ToolBar& tool_bar, const std::string& id) override {
    As<HeadlessToolBar>(tool_bar).LeaveTool(id);
  }
  void ShowPopupAndChoose(platform::ToolBar& tool_bar, const std::string& menu_id,
                          const std::string& tool_id) override {
    if (!tool_id.empty()) As<HeadlessToolBar>(tool_bar).ChooseFromNextPopup(tool_id);
    tool_bar.ShowPopupMenu(menu_id);
  }

  void ClickCell(platform::Table& table, const std::string& row, const std::string& column) override {
    As<HeadlessTable>(table).ClickRow(row, column);
  }
  void DoubleClickCell(platform::Table& table, const std::string& row, const std::string& column) override {
    As<HeadlessTable>(table).DoubleClickRow(row, column);
  }
  void ExtendToTableRow(platform::Table& table, const std::string& row) override {
    As<HeadlessTable>(table).ExtendToRow(row);
  }
  void ClickBox(platform::Table& table, const std::string& row) override {
    As<HeadlessTable>(table).ClickBox(row);
  }
  void ClickTableHeader(platform::Table& table, const std::string& column) override {
    As<HeadlessTable>(table).ClickHeader(column);
  }
  void PressSpace(platform::Table& table) override { As<HeadlessTable>(table).PressSpace(); }
  void PressCopy(platform::Table& table) override { As<HeadlessTable>(table).PressCopy(); }
  [[nodiscard]] std::string ClipboardText() override { return world_.toolkit.Clipboard(); }

  void ClickRow(platform::Grid& grid, std::int32_t row, std::int32_t button) override {
    if (button == platform::kRightButton) {
      As<HeadlessGrid>(grid).RightClickRow(row);
    } else {
      As<HeadlessGrid>(grid).ClickRow(row);
    }
  }
  void ToggleRow(platform::Grid& grid, std::int32_t row) override { As<HeadlessGrid>(grid).ToggleRow(row); }
  void ExtendToRow(platform::Grid& grid, std::int32_t row) override {
    As<HeadlessGrid>(grid).ExtendToRow(row);
  }
  void ToggleGroup(platform::Grid& grid, std::int32_t row) override {
    As<HeadlessGrid>(grid).ToggleGroup(row);
  }
  void ClickHeader(platform::Grid& grid, const std::string& column_key) override {
    As<HeadlessGrid>(grid).ClickHeader(column_key);
  }
  void DragHeaderToGroups(platform::Grid& grid, const std::string& column_key) override {
    As<HeadlessGrid>(grid).DragHeaderToGroups(column_key);
  }
  void ToggleGroupByBox(platform::Grid& grid) override { As<HeadlessGrid>(grid).ToggleGroupByBox(); }
  void DragGroupAway(platform::Grid& grid, std::int32_t position) override {
    As<HeadlessGrid>(grid).DragGroupAway(position);
  }
  [[nodiscard]] std::string CellText(platform::Grid& grid, std::int32_t row,
                                     const std::string& column_key) override {
    return As<HeadlessGrid>(grid).CellText(row, column_key);
  }
  [[nodiscard]] std::string GroupText(platform::Grid& grid, std::int32_t row) override {
    return As<HeadlessGrid>(grid).CellText(row, "");
  }
  [[nodiscard]] RowLook LookOf(platform::Grid& grid, std::int32_t row) override {
    const GridRowStyle style = As<HeadlessGrid>(grid).RowStyle(row);
    return {style.fore_color, style.bold, style.strike_through};
  }

  void ClickDay(platform::YearView& view, const platform::YearCell& cell, std::int32_t button) override {
    if (button == platform::kRightButton) {
      As<HeadlessYearView>(view).RightClickDay(cell);
    } else {
      As<HeadlessYearView>(view).ClickDay(cell);
    }
  }
  void ToggleDay(platform::YearView& view, const platform::YearCell& cell) override {
    As<HeadlessYearView>(view).ToggleDay(cell);
  }
  void ExtendToDay(platform::YearView& view, const platform::YearCell& cell) override {
    As<HeadlessYearView>(view).ExtendToDay(cell);
  }
  void DragDays(platform::YearView& view, const platform::YearCell& from,
                const platform::YearCell& to) override {
    As<HeadlessYearView>(view).ClickDay(from);
    As<HeadlessYearView>(view).ExtendToDay(to);
  }
  void PressDayKey(platform::YearView& view, DayKey key, bool extends) override {
    using year_engine::YearStep;
    static const std::map<DayKey, YearStep> kSteps = {{DayKey::kLeft, YearStep::kDayBefore},
                                                      {DayKey::kRight, YearStep::kDayAfter},
                                                      {DayKey::kUp, YearStep::kUp},
                                                      {DayKey::kDown, YearStep::kDown},
                                                      {DayKey::kHome, YearStep::kMonthStart},
                                                      {DayKey::kEnd, YearStep::kMonthEnd},
                                                      {DayKey::kPageUp, YearStep::kMonthBefore},
                                                      {DayKey::kPageDown, YearStep::kMonthAfter}};
    As<HeadlessYearView>(view).PressStep(kSteps.at(key), extends);
  }
  void PressEnterOnDay(platform::YearView& view) override { As<HeadlessYearView>(view).ActivateDay(); }
  void PressMenuKeyOnDay(platform::YearView& view) override { As<HeadlessYearView>(view).PressMenuKey(); }
  [[nodiscard]] std::string DayText(platform::YearView& view, const platform::YearCell& cell) override {
    return As<HeadlessYearView>(view).TextOf(cell);
  }

 private:
  World world_;
};

}  // namespace

std::unique_ptr<ToolkitUnderTest> MakeToolkitUnderTest() {
  return std::make_unique<HeadlessToolkitUnderTest>();
}

}  // namespace ferrowind::contract
