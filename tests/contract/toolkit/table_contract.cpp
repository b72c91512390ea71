#include "tests/contract/toolkit/toolkit_contract.h"

namespace ferrowind::contract {
namespace {

using platform::CellMark;
using platform::Subscription;
using platform::Table;
using platform::TableRow;
using testing::ElementsAre;
using testing::IsEmpty;
namespace failure_number = platform::failure_number;

class TableContract : public ToolkitContract {
 protected:
  TableContract() : tables(under_test->Toolkit().CreateForm(ContractTables())) {
    tables->Show();
    for (Table* table : {&rows, &cells})
      table->SetColumns({{"day", "Day"}, {"name", "Name"}, {"count", "Count"}});
  }

  static TableRow Row(const std::string& key, const std::string& name, std::int64_t count) {
    return {.key = key, .cells = {{.text = "Day " + key}, {.text = name}, {.text = "", .order = count}}};
  }
  static TableRow RowWithBox(const std::string& key, bool checked) {
    TableRow row = Row(key, "box", 0);
    row.checked = checked;
    return row;
  }
  /// The rows a, b, c.
  static std::vector<TableRow> Sample() {
    return {Row("a", "Pear", 10), Row("b", "apple", 9), Row("c", "Fig", 100)};
  }
  Subscription NoteCurrent(Table& table) {
    return table.OnCurrentChange([this, &table] {
      notes.push_back(table.CurrentRow().value_or("none") + "/" + table.CurrentColumn().value_or("-"));
    });
  }
  Subscription NoteChecks(Table& table) {
    return table.OnCheckChange([this](const std::string& row, bool checked) {
      notes.push_back(row + (checked ? " checked" : " unchecked"));
    });
  }

  std::shared_ptr<platform::Form> tables;
  Table& rows = platform::ControlOf<Table>(*tables, "tblRows");
  Table& cells = platform::ControlOf<Table>(*tables, "tblCells");
};

// Content

TEST_F(TableContract, IsEmptyAtFirst) {
  EXPECT_EQ(rows.RowCount(), 0U);
  EXPECT_THAT(rows.RowKeys(), IsEmpty());
  EXPECT_EQ(rows.CurrentRow(), std::nullopt);
  EXPECT_EQ(cells.CurrentColumn(), std::nullopt);
  EXPECT_THAT(rows.SelectedRows(), IsEmpty());
}

TEST_F(TableContract, ShowsItsRowsInTheProgramsOrder) {
  rows.SetRows(Sample());
  EXPECT_EQ(rows.RowCount(), 3U);
  EXPECT_THAT(rows.RowKeys(), ElementsAre("a", "b", "c"));
}

TEST_F(TableContract, TakesRowsOfFewerCellsThanColumns) {
  EXPECT_NO_THROW(rows.SetRows({{.key = "a"}, {.key = "b", .cells = {{.text = "one"}}}}));
  EXPECT_EQ(rows.RowCount(), 2U);
}

TEST_F(TableContract, ChangesNothingForAKeyThatIsThereTwice) {
  rows.SetRows(Sample());
  ExpectFailure(failure_number::kKeyNotUnique, "b", [&] {
    rows.SetRows({Row("a", "", 0), Row("b", "", 0), Row("b", "", 0)});
  });
  EXPECT_THAT(rows.RowKeys(), ElementsAre("a", "b", "c"));
  ExpectFailure(failure_number::kKeyNotUnique, "day", [&] {
    rows.SetColumns({{"day", "Day"}, {"day", "Other"}});
  });
  EXPECT_THAT(rows.RowKeys(), ElementsAre("a", "b", "c"));
}

TEST_F(TableContract, ChangesNothingForARowOfMoreCellsThanColumns) {
  rows.SetRows(Sample());
  ExpectFailure(failure_number::kInvalidArgument, "", [&] {
    rows.SetRows({{.key = "z", .cells = {{}, {}, {}, {}}}});
  });
  EXPECT_THAT(rows.RowKeys(), ElementsAre("a", "b", "c"));
}

TEST_F(TableContract, NamesTheKeyOfNoRowAndNoColumn) {
  rows.SetRows(Sample());
  const auto expect = [&](const std::string& key, const std::function<void()>& call) {
    ExpectFailure(failure_number::kElementNotFound, key, call);
  };
  expect("nowhere", [&] { rows.SetCurrentRow("nowhere"); });
  expect("nowhere", [&] { static_cast<void>(rows.Checked("nowhere")); });
  expect("nowhere", [&] { rows.SetChecked("nowhere", true); });
  expect("nothing", [&] { cells.SetCurrentColumn("nothing"); });
}

TEST_F(TableContract, LosesItsRowsWithItsColumns) {
  rows.SetRows(Sample());
  const Subscription current = NoteCurrent(rows);
  rows.SetColumns({{"other", "Other"}});
  EXPECT_EQ(rows.RowCount(), 0U);
  EXPECT_THAT(notes, ElementsAre("none/-"));
}

// Current row and cell

TEST_F(TableContract, BeginsAtItsFirstRow) {
  const Subscription current = NoteCurrent(rows);
  rows.SetRows(Sample());
  EXPECT_THAT(notes, ElementsAre("a/-"));
  EXPECT_THAT(rows.SelectedRows(), ElementsAre("a"));
}

TEST_F(TableContract, BeginsAtItsFirstCellWhereCellsAreSelected) {
  const Subscription current = NoteCurrent(cells);
  cells.SetRows(Sample());
  EXPECT_THAT(notes, ElementsAre("a/day"));
}

TEST_F(TableContract, TellsOfTheRowThatIsClicked) {
  rows.SetRows(Sample());
  const Subscription current = NoteCurrent(rows);
  under_test->ClickCell(rows, "b", "name");
  under_test->ClickCell(rows, "b", "day");
  EXPECT_THAT(notes, ElementsAre("b/-"));
  EXPECT_THAT(rows.SelectedRows(), ElementsAre("b"));
}

TEST_F(TableContract, TellsOfTheCellThatIsClicked) {
  cells.SetRows(Sample());
  const Subscription current = NoteCurrent(cells);
  under_test->ClickCell(cells, "b", "name");
  under_test->ClickCell(cells, "b", "day");
  EXPECT_THAT(notes, ElementsAre("b/name", "b/day"));
}

TEST_F(TableContract, TellsOfTheRowThatTheProgramMakesCurrent) {
  rows.SetRows(Sample());
  const Subscription current = NoteCurrent(rows);
  rows.SetCurrentRow("c");
  rows.SetCurrentRow("c");
  EXPECT_THAT(notes, ElementsAre("c/-"));
  EXPECT_THAT(rows.SelectedRows(), ElementsAre("c"));
}

TEST_F(TableContract, KeepsTheColumnWhenTheProgramGoesToARow) {
  cells.SetRows(Sample());
  cells.SetCurrentColumn("name");
  const Subscription current = NoteCurrent(cells);
  cells.SetCurrentRow("c");
  EXPECT_THAT(notes, ElementsAre("c/name"));
}

TEST_F(TableContract, HasNoCurrentColumnWhereRowsAreSelected) {
  rows.SetRows(Sample());
  const Subscription current = NoteCurrent(rows);
  rows.SetCurrentColumn("name");
  EXPECT_EQ(rows.CurrentColumn(), std::nullopt);
  EXPECT_THAT(notes, IsEmpty());
}

TEST_F(TableContract, KeepsTheCurrentRowWhereItGoes) {
  cells.SetRows(Sample());
  cells.SetCurrentRow("b");
  cells.SetCurrentColumn("name");
  const Subscription current = NoteCurrent(cells);
  cells.SetRows({Row("x", "", 0), Row("c", "", 0), Row("b", "", 0)});
  EXPECT_EQ(cells.CurrentRow(), "b");
  EXPECT_EQ(cells.CurrentColumn(), "name");
  EXPECT_THAT(notes, IsEmpty());
}

TEST_F(TableContract, GoesToTheRowAtThePlaceOfACurrentOneThatIsGone) {
  rows.SetRows(Sample());
  rows.SetCurrentRow("b");
  const Subscription current = NoteCurrent(rows);
  rows.SetRows({Row("a", "", 0), Row("c", "", 0)});
  rows.SetRows({Row("a", "", 0)});
  rows.SetRows({});
  EXPECT_THAT(notes, ElementsAre("c/-", "a/-", "none/-"));
}

TEST_F(TableContract, LetsAHandlerReplaceTheRows) {
  rows.SetRows(Sample());
  const Subscription current = rows.OnCurrentChange([&] {
    notes.push_back(rows.CurrentRow().value_or("none"));
    rows.SetRows({Row("c", "", 0), Row("d", "", 0)});
  });
  under_test->ClickCell(rows, "c", "day");
  EXPECT_THAT(notes, ElementsAre("c"));
  EXPECT_EQ(rows.CurrentRow(), "c");
  EXPECT_THAT(rows.RowKeys(), ElementsAre("c", "d"));
}

TEST_F(TableContract, LetsAHandlerDropItsForm) {
  rows.SetRows(Sample());
  const Subscription current = rows.OnCurrentChange([&] {
    notes.push_back("current");
    tables.reset();
  });
  under_test->ClickCell(rows, "c", "day");
  toolkit.ProcessPendingEvents();
  EXPECT_THAT(notes, ElementsAre("current"));
}

// Activation

TEST_F(TableContract, IsActivatedByEnterInPlaceOfTheDefaultButton) {
  rows.SetRows(Sample());
  const Subscription activated =
      rows.OnActivate([&] { notes.push_back("activate " + rows.CurrentRow().value_or("none")); });
  const Subscription pressed = platform::ControlOf<platform::Button>(*tables, "cmdOk").OnClick(Note("ok"));
  under_test->ClickCell(rows, "b", "day");
  under_test->PressEnter(*tables);
  EXPECT_THAT(notes, ElementsAre("activate b"));
}

TEST_F(TableContract, LeavesEnterToTheDefaultButtonWhileItIsEmpty) {
  const Subscription activated = rows.OnActivate(Note("activate"));
  const Subscription pressed = platform::ControlOf<platform::Button>(*tables, "cmdOk").OnClick(Note("ok"));
  rows.SetFocus();
  under_test->PressEnter(*tables);
  EXPECT_THAT(notes, ElementsAre("ok"));
}

TEST_F(TableContract, IsActivatedByADoubleClick) {
  cells.SetRows(Sample());
  const Subscription activated = cells.OnActivate([&] {
    notes.push_back("activate " + cells.CurrentRow().value_or("none") + "/" +
                    cells.CurrentColumn().value_or("-"));
  });
  under_test->DoubleClickCell(cells, "c", "name");
  EXPECT_THAT(notes, ElementsAre("activate c/name"));
}

// Boxes

TEST_F(TableContract, TellsOfABoxThatIsClicked) {
  rows.SetRows({RowWithBox("a", true), RowWithBox("b", false)});
  const Subscription checks = NoteChecks(rows);
  under_test->ClickBox(rows, "b");
  under_test->ClickBox(rows, "a");
  EXPECT_THAT(notes, ElementsAre("b checked", "a unchecked"));
  EXPECT_TRUE(rows.Checked("b"));
  EXPECT_FALSE(rows.Checked("a"));
}

TEST_F(TableContract, ChecksTheCurrentRowByTheSpaceBar) {
  rows.SetRows({RowWithBox("a", true), RowWithBox("b", false), Row("c", "no box", 0)});
  const Subscription checks = NoteChecks(rows);
  rows.SetCurrentRow("b");
  under_test->PressSpace(rows);
  under_test->PressSpace(rows);
  rows.SetCurrentRow("c");
  under_test->PressSpace(rows);
  EXPECT_THAT(notes, ElementsAre("b checked", "b unchecked"));
}

TEST_F(TableContract, ChecksAllSelectedRowsByTheSpaceBar) {
  cells.SetRows({RowWithBox("a", false), RowWithBox("b", true), RowWithBox("c", false)});
  const Subscription checks = NoteChecks(cells);
  under_test->ClickCell(cells, "a", "name");
  under_test->ExtendToTableRow(cells, "c");
  under_test->PressSpace(cells);
  EXPECT_THAT(notes, ElementsAre("a checked", "c checked"));
}

TEST_F(TableContract, TellsNothingOfABoxThatTheProgramChecks) {
  rows.SetRows({RowWithBox("a", false), Row("b", "no box", 0)});
  const Subscription checks = NoteChecks(rows);
  rows.SetChecked("a", true);
  rows.SetChecked("b", true);
  EXPECT_TRUE(rows.Checked("a"));
  EXPECT_FALSE(rows.Checked("b"));
  EXPECT_THAT(notes, IsEmpty());
}

TEST_F(TableContract, KeepsTheChecksOfRowsThatStay) {
  rows.SetRows({RowWithBox("a", true), RowWithBox("b", true)});
  under_test->ClickBox(rows, "b");
  rows.SetRows({RowWithBox("b", true), RowWithBox("c", true)});
  EXPECT_FALSE(rows.Checked("b"));
  EXPECT_TRUE(rows.Checked("c"));
}

// Selection and order

TEST_F(TableContract, SelectsManyRowsWhereTheDesignSaysSo) {
  cells.SetRows(Sample());
  under_test->ClickCell(cells, "b", "name");
  under_test->ExtendToTableRow(cells, "c");
  EXPECT_THAT(cells.SelectedRows(), ElementsAre("b", "c"));
  EXPECT_EQ(cells.CurrentRow(), "c");
}

TEST_F(TableContract, KeepsTheSelectionOfRowsThatStay) {
  cells.SetRows(Sample());
  under_test->ClickCell(cells, "a", "name");
  under_test->ExtendToTableRow(cells, "c");
  cells.SetRows({Row("c", "", 0), Row("x", "", 0), Row("a", "", 0)});
  EXPECT_THAT(cells.SelectedRows(), ElementsAre("c", "a"));
}

TEST_F(TableContract, SortsByTheColumnWhoseHeaderIsClicked) {
  cells.SetRows(Sample());
  under_test->ClickTableHeader(cells, "name");
  EXPECT_THAT(cells.RowKeys(), ElementsAre("b", "c", "a"));
  under_test->ClickTableHeader(cells, "name");
  EXPECT_THAT(cells.RowKeys(), ElementsAre("a", "c", "b"));
  under_test->ClickTableHeader(cells, "name");
  EXPECT_THAT(cells.RowKeys(), ElementsAre("a", "b", "c"));
}

TEST_F(TableContract, SortsByTheOrderOfCellsThatHaveOne) {
  cells.SetRows(Sample());
  under_test->ClickTableHeader(cells, "count");
  EXPECT_THAT(cells.RowKeys(), ElementsAre("b", "a", "c"));
}

TEST_F(TableContract, PutsCellsWithoutAnOrderBehindThoseWithOne) {
  auto sample = Sample();
  sample[1].cells[2].order.reset();
  cells.SetRows(sample);
  under_test->ClickTableHeader(cells, "count");
  EXPECT_THAT(cells.RowKeys(), ElementsAre("a", "c", "b"));
  under_test->ClickTableHeader(cells, "count");
  EXPECT_THAT(cells.RowKeys(), ElementsAre("c", "a", "b"));
}

TEST_F(TableContract, KeepsEqualRowsInTheProgramsOrderWhenSorted) {
  cells.SetRows({Row("z", "same", 0), Row("y", "Same", 0), Row("x", "same", 0)});
  under_test->ClickTableHeader(cells, "name");
  under_test->ClickTableHeader(cells, "name");
  EXPECT_THAT(cells.RowKeys(), ElementsAre("z", "y", "x"));
}

TEST_F(TableContract, StaysSortedAndAtItsRowWhenRowsAreReplaced) {
  cells.SetRows(Sample());
  cells.SetCurrentRow("c");
  const Subscription current = NoteCurrent(cells);
  under_test->ClickTableHeader(cells, "name");
  cells.SetRows({Row("x", "zebra", 0), Row("c", "middle", 0), Row("y", "bear", 0)});
  EXPECT_THAT(cells.RowKeys(), ElementsAre("y", "c", "x"));
  EXPECT_EQ(cells.CurrentRow(), "c");
  EXPECT_THAT(notes, IsEmpty());
}

TEST_F(TableContract, DoesNotSortWhereTheDesignDoesNotSaySo) {
  rows.SetRows(Sample());
  under_test->ClickTableHeader(rows, "name");
  EXPECT_THAT(rows.RowKeys(), ElementsAre("a", "b", "c"));
}

TEST_F(TableContract, CopiesTheSelectedRowsWithTheirHeadings) {
  auto sample = Sample();
  sample[2].cells[1].text = "two\tparts\nhere";
  sample[2].cells[2].mark = CellMark::kWarning;
  cells.SetRows(sample);
  under_test->ClickCell(cells, "b", "name");
  under_test->ExtendToTableRow(cells, "c");
  under_test->PressCopy(cells);
  EXPECT_EQ(under_test->ClipboardText(),
            "Day\tName\tCount\nDay b\tapple\t\nDay c\ttwo parts here\tWarning\n");
}

}  // namespace
}  // namespace ferrowind::contract
