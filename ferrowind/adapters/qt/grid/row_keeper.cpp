#include "ferrowind/adapters/qt/grid/row_keeper.h"

#include "ferrowind/adapters/qt/grid/grid_view.h"
#include "ferrowind/adapters/qt/grid/selection_order.h"

namespace ferrowind::qt {

RowKeeper::RowKeeper(const GridView& view, const SelectionOrder& selection) {
  const GridModel* model = view.Model();
  if (model == nullptr || model->rowCount() == 0) return;
  const GridContent& content = model->Content();
  if (view.currentIndex().isValid()) {
    current_ = content.IdentityOf(static_cast<std::uint32_t>(view.currentIndex().row()));
  }
  const int first = view.FirstVisibleRow();
  first_row_was_on_top_ = first <= 0;
  if (first > 0) first_visible_ = content.IdentityOf(static_cast<std::uint32_t>(first));
  const auto& ranges = selection.Ranges();
  was_all_selected_ =
      ranges.size() == 1 && ranges.front().first == 0 && ranges.front().last + 1 == model->rowCount();
  if (was_all_selected_) return;
  for (const SelectionOrder::Range& range : ranges) {
    for (int row = range.first; row <= range.last; ++row) {
      selected_.push_back(content.IdentityOf(static_cast<std::uint32_t>(row)));
    }
  }
}

void RowKeeper::PutBack(GridView& view, SelectionOrder& selection) const {
  GridModel* model = view.Model();
  if (model == nullptr || model->rowCount() == 0) return;
  const GridContent& content = model->Content();
  if (const auto current = content.RowShowing(current_)) {
    view.SetCurrentRow(static_cast<int>(*current));
  }
  if (was_all_selected_) {
    view.selectAll();
  } else if (view.selectionMode() != QAbstractItemView::SingleSelection) {
    std::vector<int> rows;
    for (const grid_content::RowIdentity& identity : selected_) {
      const auto row = content.RowShowing(identity);
      if (row && content.IdentityOf(*row) == identity) rows.push_back(static_cast<int>(*row));
    }
    // Else what is selected is the current row.
    if (!rows.empty()) selection.Select(rows);
  }
  const auto first = content.RowShowing(first_visible_);
  view.SetFirstVisibleRow(first && !first_row_was_on_top_ ? static_cast<int>(*first) : 0);
}

}  // namespace ferrowind::qt
