#pragma once

#include <QItemSelectionModel>
#include <QObject>
#include <vector>

namespace ferrowind::qt {

/// Keeps the rows of a selection in the order in which they were selected, which Qt's own selection does not
/// tell. Rows are 0-based and kept as ranges, so that selecting a million of them is one entry.
///
/// A selection that would be empty while a row is current takes that row, so that what a command acts on is
/// always painted.
class SelectionOrder final : public QObject {
  Q_OBJECT

 public:
  struct Range {
    int first = 0;
    int last = 0;
  };

  /// Follows `selection` from now on, which must outlive this object, as must its model.
  SelectionOrder(QItemSelectionModel& selection, QObject* parent);

  [[nodiscard]] const std::vector<Range>& Ranges() const { return ranges_; }
  /// Selects these rows, in this order, and no others. Precondition: there are some.
  void Select(const std::vector<int>& rows_in_order);

 private:
  void Change(const QItemSelection& selected, const QItemSelection& deselected);
  void SelectCurrentOfNone();
  void Remove(Range removed);
  void ShiftFrom(int row, int count);

  QItemSelectionModel& selection_;
  std::vector<Range> ranges_;
};

}  // namespace ferrowind::qt
