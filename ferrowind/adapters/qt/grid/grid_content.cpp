#include "ferrowind/adapters/qt/grid/grid_content.h"

#include <utility>

#include "ferrowind/adapters/qt/values/qt_text.h"

namespace ferrowind::qt {

using grid_engine::GroupId;
using grid_engine::Record;
using grid_engine::VisibleRow;

GridContent::GridContent(const std::string& grid_name, Listener listener)
    : listener_(std::move(listener)),
      columns_(grid_name,
               {[this](QtGridColumn& column) {
                  cells_.BindFields();
                  rows_.ForgetColumn(column.Index());
                  listener_.cells_changed();
                },
                [this](QtGridColumn& column) { listener_.column_visibility_changed(column); },
                [this] { listener_.captions_changed(); },
                [this](const QtGridColumn& column) { return sort_keys_.OrderOf(column.Index()); }}),
      cells_(grid_name, columns_),
      sort_keys_([this] { return columns_.Count(); }, [this] { listener_.keys_changed(); }),
      group_keys_([this] { return columns_.Count(); }, [this] { listener_.keys_changed(); }),
      rows_(cells_) {}

void GridContent::Attach(std::shared_ptr<platform::RecordSet> records) {
  columns_.DropUnheld();
  sort_keys_.Clear();
  group_keys_.Clear();
  cells_.Attach(std::move(records));
  rows_.SetRecords(cells_.RecordCount());
  if (choose_) LeaveOutRows();
}

void GridContent::Narrow(platform::Grid::RowChoice choose) {
  choose_ = std::move(choose);
  LeaveOutRows();
}

void GridContent::LeaveOutRows() {
  if (choose_ && cells_.Records()) {
    const auto shows = choose_(cells_.Records());
    rows_.ShowOnly([&](Record record) { return shows(cells_.BookmarkOf(record)); });
  } else {
    rows_.ShowOnly({});
  }
}

void GridContent::Rebind() {
  cells_.BindFields();
  Arrange(true);
}

void GridContent::Arrange(bool recompute) {
  if (recompute) {
    cells_.ForgetComputed();
    for (std::int32_t index = 1; index <= columns_.Count(); ++index) {
      if (columns_[index].Unbound()) rows_.ForgetColumn(static_cast<std::int16_t>(index));
    }
  }
  rows_.Arrange(group_keys_.ForArrangement(), sort_keys_.ForArrangement());
}

GroupLabel GridContent::LabelOf(GroupId group) const {
  const std::int16_t column = rows_.GroupColumn(group.level);
  return {ToQt(columns_[column].Caption()),
          cells_.TextOfValue(column, cells_.CellValue(column, rows_.FirstRecordOf(group))),
          rows_.RecordCountOf(group)};
}

std::optional<Record> GridContent::RecordInRow(std::uint32_t row) const {
  const VisibleRow shown = rows_.RowAt(row);
  if (shown.is_group) return std::nullopt;
  return rows_.RecordAt(shown.position);
}

RowIdentity GridContent::IdentityOf(std::uint32_t row) const {
  const VisibleRow shown = rows_.RowAt(row);
  if (shown.is_group) return {std::nullopt, rows_.PathOf(shown.group)};
  return {rows_.RecordAt(shown.position), {}};
}

std::optional<std::uint32_t> GridContent::RowShowing(const RowIdentity& identity) const {
  if (identity.record) {
    if (*identity.record >= rows_.RecordCount()) return std::nullopt;
    return rows_.RowShowing(*identity.record);
  }
  auto group = rows_.GroupOf(identity.path);
  while (group) {
    if (const auto row = rows_.Groups().RowOf(*group)) return row;
    group = rows_.Groups().ParentOf(*group);
  }
  return std::nullopt;
}

}  // namespace ferrowind::qt
