#include "tests/contract/toolkit/grid_contract.h"

#include <utility>

namespace ferrowind::contract {

using platform::Date;
using platform::RecordSet;
using platform::Value;

GridContract::GridContract() {
  AddColumn("Type", "TID1");
  AddColumn("Date", "ODate");
  AddColumn("Name", "Name1");
}

platform::GridColumn& GridContract::AddColumn(const std::string& key, const std::string& field) {
  platform::GridColumn& column = grid.AddColumn(key + " caption", 0, 1, key);
  column.SetBoundField(field);
  column.SetGroupable(1);
  return column;
}

void GridContract::ShowSample() { Attach(SampleRecords()); }

void GridContract::Attach(std::shared_ptr<RecordSet> records) {
  grid.HoldColumns();
  grid.AttachRecords(std::move(records));
  grid.Rebind();
}

std::shared_ptr<RecordSet> GridContract::SampleRecords() {
  return std::make_shared<RecordSet>(std::vector<std::string>{"TID1", "ODate", "Name1"},
                                     std::vector<std::vector<Value>>{{2, Date(2026, 1, 4), "d"},
                                                                     {1, Date(2026, 1, 2), "b"},
                                                                     {3, Date(2026, 1, 5), {}},
                                                                     {1, Date(2026, 1, 1), "a"},
                                                                     {2, Date(2026, 1, 3), "c"}});
}

std::vector<RecordSet::Bookmark> GridContract::Bookmarks() const {
  std::vector<RecordSet::Bookmark> bookmarks;
  for (std::int32_t row = 1; row <= grid.RowCount(); ++row) bookmarks.push_back(grid.RowBookmark(row));
  return bookmarks;
}

std::int16_t GridContract::IndexOf(const std::string& key) { return grid.ColumnByKey(key).Index(); }

}  // namespace ferrowind::contract
