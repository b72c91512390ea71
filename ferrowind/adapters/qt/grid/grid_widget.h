#pragma once

#include <QFrame>

namespace ferrowind::qt {

class ColumnDrag;
class GridView;
class GroupByBox;

/// The widget of a grid: the table of rows with the group-by box above it. A form's layout names this class;
/// `QtGrid` gives it something to show.
class GridWidget final : public QFrame {
  Q_OBJECT

 public:
  explicit GridWidget(QWidget* parent = nullptr);

  [[nodiscard]] GridView& View() const { return *view_; }
  [[nodiscard]] GroupByBox& Box() const { return *box_; }

 private:
  GroupByBox* box_;
  GridView* view_;
  ColumnDrag* drag_;
};

}  // namespace ferrowind::qt
