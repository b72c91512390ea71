// What lasts of a grid: how its columns are arranged, and copies of its rows.
#include <algorithm>

#include "ferrowind/adapters/grid_content/grid_layout.h"
#include "ferrowind/adapters/win32/base/clipboard.h"
#include "ferrowind/adapters/win32/base/twips.h"
#include "ferrowind/adapters/win32/grid/grid.h"
#include "ferrowind/adapters/win32/grid/row_copy.h"

namespace ferrowind::win32 {
namespace {

/// What widths in layouts are designed for.
constexpr int kDesignedDotsPerInch = 96;
/// What stands in layouts for a column that has never had any content to be fitted to.
constexpr int kUnfitted = static_cast<int>(GridGeometry::kUsualWidth);

}  // namespace

std::string Win32Grid::SaveLayout() const {
  if (ColumnCount() == 0) return {};
  const int dots = static_cast<int>(DotsPerInch());
  grid_content::GridLayout layout;
  for (const std::int16_t column : geometry_.Order()) {
    const auto set = geometry_.WidthSetFor(column);
    const int width =
        set ? std::max(1, MulDiv(static_cast<int>(*set), kDesignedDotsPerInch, dots)) : kUnfitted;
    layout.columns.push_back({content_.Columns()[column].Key(), width, content_.Columns()[column].Visible()});
  }
  layout.sort_keys = grid_content::KeysOf(content_.Columns(), content_.SortKeys());
  layout.group_keys = grid_content::KeysOf(content_.Columns(), content_.GroupKeys());
  return grid_content::EncodeLayout(layout);
}

bool Win32Grid::RestoreLayout(const std::string& layout) {
  const auto stored = grid_content::DecodeLayout(layout);
  if (!stored) return false;
  std::size_t place = 0;
  for (const auto& saved : stored->columns) {
    grid_content::StoredColumn* const column = content_.Columns().Find(saved.key);
    if (column == nullptr) continue;
    geometry_.MoveTo(column->Index(), place++);
    if (saved.width != kUnfitted) {
      geometry_.SetWidth(column->Index(), Scaled(saved.width, DotsPerInch()));
      settled_widths_.insert(column->Index());
    }
    column->SetVisible(saved.is_visible);
  }
  if (place == 0) return false;
  grid_content::RestoreKeys(content_.Columns(), stored->sort_keys, content_.SortKeys());
  grid_content::RestoreKeys(content_.Columns(), stored->group_keys, content_.GroupKeys());
  Refresh(false);
  Resized();
  return true;
}

void Win32Grid::CopyRows(bool with_headers) const {
  std::vector<std::uint32_t> rows = MarkedFromTop();
  if (rows.empty()) {
    for (std::uint32_t row = 0; row < content_.Rows().RowCount(); ++row) rows.push_back(row);
  }
  std::vector<std::int16_t> columns;
  for (const std::int16_t column : geometry_.Order()) {
    if (content_.Columns()[column].Visible()) columns.push_back(column);
  }
  PutOnClipboard(Handle(), CopyOfRows(content_, columns, rows, with_headers));
}

}  // namespace ferrowind::win32
