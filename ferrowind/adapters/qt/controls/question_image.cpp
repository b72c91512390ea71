#include "ferrowind/adapters/qt/controls/question_image.h"

#include <QPainter>
#include <algorithm>

#include "ferrowind/adapters/qt/look/message_images.h"

namespace ferrowind::qt {

QuestionImage::QuestionImage(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Minimum);
}

QSize QuestionImage::sizeHint() const {
  constexpr int kSmallestSide = 32;
  const int side = std::max(kSmallestSide, 2 * fontMetrics().lineSpacing());
  return {side, side};
}

void QuestionImage::paintEvent(QPaintEvent* /*event*/) {
  QRect square(QPoint(0, 0), sizeHint());
  square.moveCenter(rect().center());
  QPainter painter(this);
  MessageImage(MessageKind::kQuestion).paint(&painter, square);
}

}  // namespace ferrowind::qt
