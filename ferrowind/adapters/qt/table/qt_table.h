#pragma once

#include "ferrowind/adapters/qt/controls/qt_control.h"
#include "ferrowind/adapters/qt/table/table_model.h"
#include "ferrowind/adapters/qt/table/table_view.h"
#include "ferrowind/adapters/table_engine/table_content.h"
#include "ferrowind/platform/toolkit/form_design.h"
#include "ferrowind/platform/toolkit/table.h"

namespace ferrowind::qt {

class QtTable : public QtControl<platform::Table> {
 public:
  explicit QtTable(TableView& view);
  ~QtTable() override;

  /// What its design says of what the operator can do.
  void ApplyDesign(const platform::ControlDesign& design);

  void SetColumns(const std::vector<platform::TableColumn>& columns) override;
  void SetRows(const std::vector<platform::TableRow>& rows) override;
  void SetEmptyText(const std::string& text) override;
  [[nodiscard]] std::size_t RowCount() const override { return content_.RowCount(); }
  [[nodiscard]] std::vector<std::string> RowKeys() const override { return content_.Keys(); }
  [[nodiscard]] std::optional<std::string> CurrentRow() const override;
  [[nodiscard]] std::optional<std::string> CurrentColumn() const override;
  void SetCurrentRow(const std::string& row) override;
  void SetCurrentColumn(const std::string& column) override;
  [[nodiscard]] std::vector<std::string> SelectedRows() const override;
  [[nodiscard]] bool Checked(const std::string& row) const override;
  void SetChecked(const std::string& row, bool checked) override;
  [[nodiscard]] platform::Subscription OnCurrentChange(std::function<void()> handler) override;
  [[nodiscard]] platform::Subscription OnActivate(std::function<void()> handler) override;
  [[nodiscard]] platform::Subscription OnCheckChange(
      std::function<void(const std::string& row, bool checked)> handler) override;

 private:
  struct Current {
    std::optional<std::string> row;
    std::optional<std::string> column;
    friend bool operator==(const Current&, const Current&) = default;
  };

  /// Runs a change of the content, shows it, and keeps what the operator had current and selected.
  void Change(const std::function<void()>& change);
  void Select(const std::vector<std::string>& rows);
  void GoTo(int row, int column);
  /// Raises the event when the current row or cell is not the one that was told of last.
  void TellCurrent();
  void Check(const std::vector<std::string>& rows, bool checked);
  void CheckSelected();
  void SortBy(int column);
  void ShowSortMenu(const QPoint& global);
  void Copy() const;

  TableView& view_;
  table_engine::TableContent content_;
  TableModel model_;
  bool is_changing_ = false;
  Current told_;
  platform::Signal<> current_changed_;
  platform::Signal<> activated_;
  platform::Signal<const std::string&, bool> check_changed_;
};

}  // namespace ferrowind::qt
