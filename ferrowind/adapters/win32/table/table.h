#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "ferrowind/adapters/table_engine/column_widths.h"
#include "ferrowind/adapters/table_engine/table_content.h"
#include "ferrowind/adapters/win32/controls/control_window.h"
#include "ferrowind/adapters/win32/controls/row_selection.h"
#include "ferrowind/adapters/win32/controls/scroll_bars.h"
#include "ferrowind/adapters/win32/controls/shortcut.h"
#include "ferrowind/adapters/win32/table/table_geometry.h"
#include "ferrowind/adapters/win32/table/table_parts.h"
#include "ferrowind/adapters/win32/table/type_ahead.h"
#include "ferrowind/platform/toolkit/form_design.h"
#include "ferrowind/platform/toolkit/table.h"

namespace ferrowind::win32 {

/// The table, painted by itself.
class Win32Table final : public Win32Control<platform::Table> {
 public:
  /// `design` says what the operator can do.
  Win32Table(ControlHost& host, const platform::ControlDesign& design, HWND parent);

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

  [[nodiscard]] bool CanHaveFocus() const override { return true; }
  [[nodiscard]] bool FillsHeight() const override { return true; }
  /// Enter activates the current row.
  [[nodiscard]] bool KeepsKey(WPARAM key) const override { return key == VK_RETURN && RowCount() > 0; }

  [[nodiscard]] const AccessibleWindow* Accessible() const override { return &accessible_; }

  /// What is shown, and where.
  [[nodiscard]] const table_engine::TableContent& Content() const { return content_; }
  [[nodiscard]] const TableGeometry& Geometry() const { return geometry_; }

 protected:
  LRESULT OnMessage(UINT message, WPARAM w_param, LPARAM l_param) override;
  [[nodiscard]] SIZE NeededSize() const override;

 private:
  /// What the operator is at.
  struct Current {
    std::optional<std::string> row;
    std::optional<std::string> column;
    friend bool operator==(const Current&, const Current&) = default;
  };
  /// An edge of a header that is being dragged.
  struct EdgeDrag {
    std::size_t column = 0;
    LONG left = 0;
  };

  // Content
  /// Runs a change of the content, and keeps what the operator had current and selected.
  void Change(const std::function<void()>& change);
  void GoTo(std::size_t row);
  void TellCurrent();
  void Check(const std::vector<std::string>& rows, bool checked);
  void CheckSelected();
  void SortBy(std::size_t column);
  void Copy() const;

  // Looks
  void Resized();
  void MeasureColumns(bool forgets);
  void ShareOutRoom();
  void ShowScrollBars();
  void Scroll(int bar, WORD request);
  void ScrollTo(std::size_t first_row);
  void BringIntoSight();
  void Repaint() const { InvalidateRect(Handle(), nullptr, FALSE); }
  void Paint();
  void ShowTipOf(const TableHit& hit);

  // What the operator does
  bool OnMouse(UINT message, POINT place);
  void PressAt(POINT place, bool is_double);
  void Choose(std::size_t row, std::size_t column, bool extends, bool toggles);
  bool OnKey(const KeyPress& press);
  bool OnMove(const KeyPress& press);
  void ShowSortMenu(POINT client);
  [[nodiscard]] bool OnBox(const TableHit& hit, POINT place) const;

  table_engine::TableContent content_;
  TableGeometry geometry_;
  RowSelection selection_;
  TypeAhead type_ahead_;
  WheelSteps wheel_;
  std::size_t current_column_ = 0;
  bool selects_cells_;
  bool selects_many_;
  bool sorts_;
  std::wstring empty_text_;
  std::vector<table_engine::ColumnWish> wishes_;
  std::optional<EdgeDrag> edge_drag_;
  std::optional<std::size_t> pressed_header_;
  std::string tip_;
  Current told_;
  TableParts parts_{{content_, geometry_, selection_, empty_text_, Words(),
                     selects_cells_ ? &current_column_ : nullptr,
                     [this](std::size_t row, std::size_t column) { Choose(row, column, false, false); }}};
  AccessibleWindow accessible_{Handle(), parts_};
  platform::Signal<> current_changed_;
  platform::Signal<> activated_;
  platform::Signal<const std::string&, bool> check_changed_;
};

}  // namespace ferrowind::win32
