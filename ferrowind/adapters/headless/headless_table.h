#pragma once

#include <optional>
#include <string>
#include <vector>

#include "ferrowind/adapters/headless/headless_control.h"
#include "ferrowind/adapters/table_engine/table_content.h"
#include "ferrowind/platform/toolkit/form_design.h"
#include "ferrowind/platform/toolkit/table.h"

namespace ferrowind::headless {

class HeadlessTable : public HeadlessControl<platform::Table> {
 public:
  /// `clipboard` takes what the operator copies and must outlive the table.
  HeadlessTable(ControlHost& host, const platform::ControlDesign& design, std::string& clipboard);

  void SetColumns(const std::vector<platform::TableColumn>& columns) override;
  void SetRows(const std::vector<platform::TableRow>& rows) override;
  void SetEmptyText(const std::string& text) override {
    core_.Record("SetEmptyText", {text});
    empty_text_ = text;
  }
  [[nodiscard]] std::size_t RowCount() const override { return content_.RowCount(); }
  [[nodiscard]] std::vector<std::string> RowKeys() const override { return content_.Keys(); }
  [[nodiscard]] std::optional<std::string> CurrentRow() const override { return current_row_; }
  [[nodiscard]] std::optional<std::string> CurrentColumn() const override;
  void SetCurrentRow(const std::string& row) override;
  void SetCurrentColumn(const std::string& column) override;
  [[nodiscard]] std::vector<std::string> SelectedRows() const override;
  [[nodiscard]] bool Checked(const std::string& row) const override;
  void SetChecked(const std::string& row, bool checked) override;
  [[nodiscard]] platform::Subscription OnCurrentChange(std::function<void()> handler) override {
    return current_changed_.Subscribe(std::move(handler));
  }
  [[nodiscard]] platform::Subscription OnActivate(std::function<void()> handler) override {
    return activated_.Subscribe(std::move(handler));
  }
  [[nodiscard]] platform::Subscription OnCheckChange(
      std::function<void(const std::string& row, bool checked)> handler) override {
    return check_changed_.Subscribe(std::move(handler));
  }

  // What a test can ask
  // -----------------------------------------------------------------------------------------

  [[nodiscard]] const std::string& EmptyText() const { return empty_text_; }
  [[nodiscard]] const std::vector<platform::TableColumn>& Columns() const { return content_.Columns(); }
  [[nodiscard]] const platform::TableRow& Row(const std::string& key) const {
    return content_.RowAt(content_.RowOf(key));
  }
  [[nodiscard]] const platform::TableCell& Cell(const std::string& row, const std::string& column) const {
    return content_.CellAt(content_.RowOf(row), content_.ColumnOf(column));
  }
  /// The texts of a row, those of its cells in the order of the columns.
  [[nodiscard]] std::vector<std::string> Texts(const std::string& row) const;

  // What the operator does
  // --------------------------------------------------------------------------------------

  /// Clicks a row, in the current column or, where cells are selected, in `column` unless it is "".
  void ClickRow(const std::string& row, const std::string& column = {});
  /// Clicks a row while the Shift or the Ctrl key is held; script error where only one can be selected.
  void ExtendToRow(const std::string& row);
  void ToggleRow(const std::string& row);
  void DoubleClickRow(const std::string& row, const std::string& column = {});
  /// Presses Enter while the table has the focus. In an empty table the key is the form's.
  void PressEnter();
  /// Presses the space bar.
  void PressSpace();
  /// Clicks the box of a row; script error when it has none.
  void ClickBox(const std::string& row);
  /// Clicks a header; does nothing where the design does not let the operator sort.
  void ClickHeader(const std::string& column);
  /// Presses Ctrl+C.
  void PressCopy();

 private:
  [[nodiscard]] std::size_t RequireRow(const std::string& row);
  void MakeCurrent(std::size_t place, std::size_t column);
  void Check(const std::vector<std::string>& rows, bool checked);

  platform::ControlDesign design_;
  std::string& clipboard_;
  table_engine::TableContent content_;
  std::optional<std::string> current_row_;
  std::size_t current_column_ = 0;
  std::vector<std::string> selected_;
  std::string empty_text_;
  platform::Signal<> current_changed_;
  platform::Signal<> activated_;
  platform::Signal<const std::string&, bool> check_changed_;
};

}  // namespace ferrowind::headless
