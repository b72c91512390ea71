#pragma once

#include <QAbstractItemModelTester>
#include <QTest>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "ferrowind/adapters/qt/grid/grid_header.h"
#include "ferrowind/adapters/qt/grid/grid_model.h"
#include "ferrowind/adapters/qt/grid/grid_view.h"
#include "ferrowind/adapters/qt/grid/group_by_box.h"
#include "ferrowind/adapters/qt/grid/qt_grid.h"

namespace ferrowind::qt {

/// A grid on the screen with the columns Name (text), Type (number), Day (date), Note (text), over rows that
/// a test gives.
class GridTest : public ::testing::Test {
 protected:
  using Row = std::vector<platform::Value>;

  GridTest() {
    widget_ = std::make_unique<GridWidget>();
    widget_->setObjectName("grid");
    widget_->resize(700, 400);
    grid_ = std::make_unique<QtGrid>(*widget_);
    for (const char* key : {"Name", "Type", "Day", "Note"}) AddColumn(key, key);
    // Ends the program when the model announces its changes wrongly.
    tester_ = std::make_unique<QAbstractItemModelTester>(
        &Model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    widget_->show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(widget_.get()));
  }

  void AddColumn(const std::string& key, const std::string& field) {
    grid_->AddColumn(key + "s", 0, 1, key);
    grid_->ColumnByKey(key).SetBoundField(field);
  }

  std::shared_ptr<platform::RecordSet> Attach(std::vector<Row> rows) {
    auto records = std::make_shared<platform::RecordSet>(
        std::vector<std::string>{"Name", "Type", "Day", "Note"}, std::move(rows));
    grid_->HoldColumns();
    grid_->AttachRecords(records);
    grid_->Rebind();
    return records;
  }

  /// Rows of those names and types.
  static std::vector<Row> Rows(const std::vector<std::pair<std::string, std::int32_t>>& names_and_types) {
    std::vector<Row> rows;
    for (const auto& [name, type] : names_and_types)
      rows.push_back({name, type, platform::Value(), platform::Value()});
    return rows;
  }

  void GroupBy(std::int16_t column) {
    grid_->GroupKeys().Add(column, platform::kSortAscending, 0);
    grid_->Refresh(true);
  }
  void SortBy(std::int16_t column, std::int32_t order) {
    grid_->SortKeys().Clear();
    grid_->SortKeys().Add(column, order, 0);
    grid_->Refresh(true);
  }

  /// What the rows show: the name of each record, the text of each group in brackets.
  std::vector<std::string> Shown() {
    std::vector<std::string> shown;
    for (int row = 0; row < Model().rowCount(); ++row) {
      const std::string text = Model().data(Model().index(row, 0), Qt::DisplayRole).toString().toStdString();
      shown.push_back(grid_->RowBookmark(row + 1) == 0 ? "[" + text + "]" : text);
    }
    return shown;
  }

  GridView& View() { return widget_->View(); }
  GridModel& Model() { return *widget_->View().Model(); }
  GridHeader& Header() { return widget_->View().Header(); }

  QPoint CellAt(int row, int column) {
    return View().visualRect(Model().index(row - 1, column - 1)).center();
  }
  QPoint HeaderAt(int column) {
    return {Header().sectionViewportPosition(column - 1) + Header().sectionSize(column - 1) / 2,
            Header().height() / 2};
  }

  void Click(int row, int column, Qt::KeyboardModifiers modifiers = {}) {
    QTest::mouseClick(View().viewport(), Qt::LeftButton, modifiers, CellAt(row, column));
  }
  void ClickHeader(int column, Qt::KeyboardModifiers modifiers = {}) {
    QTest::mouseClick(Header().viewport(), Qt::LeftButton, modifiers, HeaderAt(column));
  }
  /// Drags with the left button inside the grid, by plain mouse events sent to `source`.
  static void Drag(QWidget& source, QPoint from, QPoint to) {
    QTest::mousePress(&source, Qt::LeftButton, {}, from);
    QTest::mouseMove(&source, (from + to) / 2);
    QTest::mouseMove(&source, to);
    QTest::mouseRelease(&source, Qt::LeftButton, {}, to);
  }

  std::unique_ptr<GridWidget> widget_;
  std::unique_ptr<QtGrid> grid_;
  std::unique_ptr<QAbstractItemModelTester> tester_;
};

}  // namespace ferrowind::qt
