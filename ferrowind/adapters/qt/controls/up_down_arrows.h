#pragma once

#include <QWidget>

class QToolButton;

namespace ferrowind::qt {

/// A pair of arrow buttons, one above the other. The up and down keys and the mouse wheel press them as well,
/// and a button held down goes on stepping.
class UpDownArrows : public QWidget {
  Q_OBJECT

 public:
  explicit UpDownArrows(QWidget* parent = nullptr);
  [[nodiscard]] QSize sizeHint() const override;

 Q_SIGNALS:
  /// +1 for up, -1 for down.
  void Stepped(int direction);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  QToolButton* AddArrow(Qt::ArrowType arrow, const QString& accessible_name, int direction);

  int wheel_angle_ = 0;
};

}  // namespace ferrowind::qt
