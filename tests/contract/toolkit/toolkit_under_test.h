#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "ferrowind/platform/toolkit/animation.h"
#include "ferrowind/platform/toolkit/button.h"
#include "ferrowind/platform/toolkit/date_picker.h"
#include "ferrowind/platform/toolkit/drop_down_list.h"
#include "ferrowind/platform/toolkit/form.h"
#include "ferrowind/platform/toolkit/grid.h"
#include "ferrowind/platform/toolkit/label.h"
#include "ferrowind/platform/toolkit/status_bar.h"
#include "ferrowind/platform/toolkit/table.h"
#include "ferrowind/platform/toolkit/text_box.h"
#include "ferrowind/platform/toolkit/text_view.h"
#include "ferrowind/platform/toolkit/tool_bar.h"
#include "ferrowind/platform/toolkit/toolkit.h"
#include "ferrowind/platform/toolkit/tree.h"
#include "ferrowind/platform/toolkit/up_down.h"
#include "ferrowind/platform/toolkit/year_view.h"

namespace ferrowind::contract {

/// How a row of a grid looks because of its conditional formats.
struct RowLook {
  /// Nothing while no format sets one.
  std::optional<platform::Color> fore_color;
  bool bold = false;
  bool strike_through = false;
};

/// The keys that go from day to day.
enum class DayKey { kLeft, kRight, kUp, kDown, kHome, kEnd, kPageUp, kPageDown };

/// One adapter of the toolkit port, and an operator who uses it. A new one is made for every test.
///
/// The adapter has layouts for the forms of contract_forms.h. The operator's methods play real input as far
/// as the adapter can; the form that they touch is shown and takes input. They return once the input is
/// handled.
class ToolkitUnderTest {
 public:
  virtual ~ToolkitUnderTest() = default;

  [[nodiscard]] virtual platform::Toolkit& Toolkit() = 0;
  /// The path of an animated image that the adapter can play.
  [[nodiscard]] virtual std::string AnimatedImage() = 0;

  /// Calls `ShowModal` of the form and runs `operator_script` while the form is on show. The script hides or
  /// unloads it, or makes the component do so. May be called by such a script for another form.
  virtual void ShowModal(platform::Form& form, std::function<void()> operator_script) = 0;
  /// Closes the form by its frame, or tries to where the frame offers no closing.
  virtual void CloseByFrame(platform::Form& form) = 0;
  /// Gives the form another outer size, in twips, by its frame.
  virtual void ResizeByFrame(platform::Form& form, float width, float height) = 0;
  /// Minimises the form by its frame.
  virtual void Minimise(platform::Form& form) = 0;
  [[nodiscard]] virtual bool IsMinimised(platform::Form& form) = 0;
  virtual void PressEnter(platform::Form& form) = 0;
  virtual void PressEscape(platform::Form& form) = 0;

  /// Lets so much time pass, and what waits for it happen.
  virtual void Wait(std::int32_t milliseconds) = 0;

  /// Calls `ChooseFileToSave` for PDF documents and PNG pictures, and types `name` into the question, or
  /// turns it down where that is nothing. The file's name without its folder, or nothing.
  [[nodiscard]] virtual std::optional<std::string> AskForFile(const std::optional<std::string>& name) = 0;

  /// Calls `ChooseFileToOpen` for lists with the suffixes ics and csv where a file "days.ics" is, and types
  /// `name` into the question, or turns it down where that is nothing. When the answer is not taken, the
  /// question is turned down. The file's name without its folder, or nothing.
  [[nodiscard]] virtual std::optional<std::string> AskForFileToRead(
      const std::optional<std::string>& name) = 0;

  /// Clicks the button, whether it is enabled or not.
  virtual void Click(platform::Button& button) = 0;
  /// Goes to the text box and types behind its text, or in place of the selected text.
  virtual void TypeText(platform::TextBox& text_box, const std::string& text) = 0;
  /// Presses the keys of the text, wherever the form has its focus.
  virtual void PressTextKeys(platform::Form& form, const std::string& text) = 0;
  virtual void Choose(platform::DropDownList& list, const std::string& item) = 0;
  virtual void PickDate(platform::DatePicker& picker, const platform::Date& date) = 0;
  /// Types a text that is no day in place of what the picker shows.
  virtual void TypeNoDate(platform::DatePicker& picker) = 0;
  /// Whether the operator sees that the picker's text is refused.
  [[nodiscard]] virtual bool ShowsRefusal(platform::DatePicker& picker) = 0;
  virtual void StepUp(platform::UpDown& up_down) = 0;
  virtual void StepDown(platform::UpDown& up_down) = 0;

  virtual void ClickNode(platform::Tree& tree, const std::string& key) = 0;
  /// Expands a collapsed node and collapses an expanded one; the node has children.
  virtual void ToggleNode(platform::Tree& tree, const std::string& key) = 0;

  virtual void ClickTool(platform::ToolBar& tool_bar, const std::string& id) = 0;
  /// Presses a tool's shortcut, written as its design has it, while the form is active.
  virtual void PressShortcut(platform::Form& form, const std::string& shortcut) = 0;
  /// Moves the mouse onto the tool of the bar and away again.
  virtual void EnterTool(platform::ToolBar& tool_bar, const std::string& id) = 0;
  virtual void LeaveTool(platform::ToolBar& tool_bar, const std::string& id) = 0;
  /// Calls `ShowPopupMenu` and chooses that tool, or dismisses the menu where `tool_id` is empty.
  virtual void ShowPopupAndChoose(platform::ToolBar& tool_bar, const std::string& menu_id,
                                  const std::string& tool_id) = 0;

  /// Clicks a cell of a table.
  virtual void ClickCell(platform::Table& table, const std::string& row, const std::string& column) = 0;
  virtual void DoubleClickCell(platform::Table& table, const std::string& row, const std::string& column) = 0;
  /// Clicks a table's row while the Shift key is held.
  virtual void ExtendToTableRow(platform::Table& table, const std::string& row) = 0;
  /// Clicks the box of a table's row.
  virtual void ClickBox(platform::Table& table, const std::string& row) = 0;
  virtual void ClickTableHeader(platform::Table& table, const std::string& column) = 0;
  /// Presses the space bar, and Ctrl+C, in the table, which takes the focus.
  virtual void PressSpace(platform::Table& table) = 0;
  virtual void PressCopy(platform::Table& table) = 0;
  [[nodiscard]] virtual std::string ClipboardText() = 0;

  /// Clicks a row with `kLeftButton` or `kRightButton`.
  virtual void ClickRow(platform::Grid& grid, std::int32_t row, std::int32_t button) = 0;
  /// Clicks a row with the left button while the Ctrl key is held.
  virtual void ToggleRow(platform::Grid& grid, std::int32_t row) = 0;
  /// Clicks a row with the left button while the Shift key is held.
  virtual void ExtendToRow(platform::Grid& grid, std::int32_t row) = 0;
  /// Expands a collapsed group row and collapses an expanded one.
  virtual void ToggleGroup(platform::Grid& grid, std::int32_t row) = 0;
  virtual void ClickHeader(platform::Grid& grid, const std::string& column_key) = 0;
  /// Drags a column's header into the group-by box, which is on show, behind the headers there.
  virtual void DragHeaderToGroups(platform::Grid& grid, const std::string& column_key) = 0;
  /// Drags the header at the 1-based position out of the group-by box.
  virtual void DragGroupAway(platform::Grid& grid, std::int32_t position) = 0;
  /// Shows or hides the group-by box from the menu of the headers.
  virtual void ToggleGroupByBox(platform::Grid& grid) = 0;
  /// What stands in a cell of a record's row.
  [[nodiscard]] virtual std::string CellText(platform::Grid& grid, std::int32_t row,
                                             const std::string& column_key) = 0;
  /// What a group row says.
  [[nodiscard]] virtual std::string GroupText(platform::Grid& grid, std::int32_t row) = 0;
  [[nodiscard]] virtual RowLook LookOf(platform::Grid& grid, std::int32_t row) = 0;

  /// Clicks a day with `kLeftButton` or `kRightButton`.
  virtual void ClickDay(platform::YearView& view, const platform::YearCell& cell, std::int32_t button) = 0;
  /// Clicks a day with the left button while the Ctrl key is held.
  virtual void ToggleDay(platform::YearView& view, const platform::YearCell& cell) = 0;
  /// Clicks a day with the left button while the Shift key is held.
  virtual void ExtendToDay(platform::YearView& view, const platform::YearCell& cell) = 0;
  /// Presses the left button on one day and releases it on another.
  virtual void DragDays(platform::YearView& view, const platform::YearCell& from,
                        const platform::YearCell& to) = 0;
  /// Presses the key, with the Shift key held where it `extends` the selection.
  virtual void PressDayKey(platform::YearView& view, DayKey key, bool extends) = 0;
  virtual void PressEnterOnDay(platform::YearView& view) = 0;
  virtual void PressMenuKeyOnDay(platform::YearView& view) = 0;
  /// What assistive tools say of a day.
  [[nodiscard]] virtual std::string DayText(platform::YearView& view, const platform::YearCell& cell) = 0;
};

/// Supplied by each adapter that the suite is built for.
[[nodiscard]] std::unique_ptr<ToolkitUnderTest> MakeToolkitUnderTest();

}  // namespace ferrowind::contract
