#include "ferrowind/adapters/qt/controls/up_down_arrows.h"

#include <QKeyEvent>
#include <QPainter>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "ferrowind/adapters/qt/values/translated.h"

namespace ferrowind::qt {
namespace {

constexpr int kArrowWidth = 18;
constexpr int kWheelStep = 120;
constexpr int kFocusLine = 1;

}  // namespace

UpDownArrows::UpDownArrows(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  auto* layout = new QVBoxLayout(this);
  // Room for the frame that tells the focus.
  layout->setContentsMargins(kFocusLine, kFocusLine, kFocusLine, kFocusLine);
  layout->setSpacing(0);
  layout->addWidget(AddArrow(Qt::UpArrow, Translated("Up"), 1));
  layout->addWidget(AddArrow(Qt::DownArrow, Translated("Down"), -1));
}

QSize UpDownArrows::sizeHint() const { return {kArrowWidth, fontMetrics().height() + 10}; }

void UpDownArrows::paintEvent(QPaintEvent* /*event*/) {
  if (!hasFocus()) return;
  QPainter painter(this);
  painter.setPen(QPen(palette().color(QPalette::Link), kFocusLine));
  painter.drawRect(rect().adjusted(0, 0, -kFocusLine, -kFocusLine));
}

void UpDownArrows::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Up) return Q_EMIT Stepped(1);
  if (event->key() == Qt::Key_Down) return Q_EMIT Stepped(-1);
  QWidget::keyPressEvent(event);
}

void UpDownArrows::wheelEvent(QWheelEvent* event) {
  // Touchpads send fractions of a step.
  wheel_angle_ += event->angleDelta().y();
  for (; wheel_angle_ >= kWheelStep; wheel_angle_ -= kWheelStep) Q_EMIT Stepped(1);
  for (; wheel_angle_ <= -kWheelStep; wheel_angle_ += kWheelStep) Q_EMIT Stepped(-1);
  event->accept();
}

QToolButton* UpDownArrows::AddArrow(Qt::ArrowType arrow, const QString& accessible_name, int direction) {
  auto* button = new QToolButton(this);
  button->setArrowType(arrow);
  button->setAccessibleName(accessible_name);
  button->setAutoRepeat(true);
  button->setFocusPolicy(Qt::NoFocus);
  button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
  connect(button, &QToolButton::clicked, this, [this, direction] { Q_EMIT Stepped(direction); });
  return button;
}

}  // namespace ferrowind::qt
