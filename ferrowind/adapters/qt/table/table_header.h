#pragma once

#include <QHeaderView>

#include "ferrowind/adapters/table_engine/table_content.h"

namespace ferrowind::qt {

class TableView;

/// The headers of a table: captions, and the mark of the column that the rows are sorted by.
class TableHeader final : public QHeaderView {
  Q_OBJECT

 public:
  explicit TableHeader(TableView& view);

  /// The width at which the caption, and a sort mark, are read in full.
  [[nodiscard]] int FittingWidth(int column) const;
  [[nodiscard]] QSize sizeHint() const override;

 signals:
  void ResizedByOperator(int column);

 protected:
  bool viewportEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void paintSection(QPainter* painter, const QRect& area, int column) const override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  [[nodiscard]] QString CaptionOf(int column) const;
  [[nodiscard]] int SortMarkWidth(int column) const;

  TableView& view_;
  bool is_pressed_ = false;
};

}  // namespace ferrowind::qt
