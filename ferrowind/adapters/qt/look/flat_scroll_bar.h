#pragma once

#include <QScrollBar>

namespace ferrowind::qt {

/// A scroll bar without shading: it matches the flat grid and tree that it stands beside, and paints in a
/// small part of the time that the shaded ones of the style take. Where its parts are is the style's choice.
class FlatScrollBar : public QScrollBar {
 public:
  explicit FlatScrollBar(Qt::Orientation orientation, QWidget* parent = nullptr);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace ferrowind::qt
