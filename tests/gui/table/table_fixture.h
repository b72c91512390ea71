#pragma once

#include <QApplication>
#include <QTest>
#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/qt/table/qt_table.h"
#include "ferrowind/adapters/qt/table/table_header.h"
#include "ferrowind/adapters/qt/table/table_view.h"

namespace ferrowind::qt {

/// A table in a window of its own, with the columns "day", "name" and "why", of which the last one stretches.
class TableTest : public ::testing::Test {
 protected:
  TableTest() {
    view_->setObjectName("tblRows");
    view_->resize(620, 300);
    table_ = std::make_unique<QtTable>(*view_);
    table_->SetColumns({{"day", "Day"}, {"name", "Name"}, {"why", "Why", {}, true}});
    view_->show();
    view_->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(view_.get()));
    view_->setFocus();
  }
  ~TableTest() override { table_.reset(); }

  void Design(platform::ControlDesign design) {
    design.kind = platform::ControlKind::kTable;
    design.name = "tblRows";
    table_->ApplyDesign(design);
  }
  static platform::TableRow Row(const std::string& key, const std::string& name,
                                const std::string& why = {}) {
    return {.key = key, .cells = {{.text = "Day " + key}, {.text = name}, {.text = why}}};
  }
  /// One row a mark, checked and not in turns, with quiet and loud cells.
  static std::vector<platform::TableRow> AllMarks() {
    std::vector<platform::TableRow> rows;
    for (int mark = 0; mark <= static_cast<int>(platform::CellMark::kToday); ++mark) {
      platform::TableRow row = Row(std::to_string(mark), "Plain", "Of no weight");
      row.checked = mark % 2 == 0;
      row.cells[1].mark = static_cast<platform::CellMark>(mark);
      row.cells[1].text = platform::WordOf(row.cells[1].mark);
      row.cells[1].tone = mark % 3 == 0 ? platform::CellTone::kLoud : platform::CellTone::kNormal;
      row.cells[2].tone = platform::CellTone::kQuiet;
      rows.push_back(row);
    }
    return rows;
  }
  [[nodiscard]] QRect CellArea(const std::string& row, int column) const {
    return view_->visualRect(
        view_->Model()->index(static_cast<int>(view_->Model()->Content().RowOf(row)), column));
  }
  /// The viewport as it is painted now.
  [[nodiscard]] QImage Picture() const {
    QCoreApplication::processEvents();
    return view_->viewport()->grab().toImage();
  }
  void Press(int key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(view_.get(), static_cast<Qt::Key>(key), modifiers);
  }

  std::unique_ptr<TableView> view_ = std::make_unique<TableView>();
  std::unique_ptr<QtTable> table_;
};

}  // namespace ferrowind::qt
