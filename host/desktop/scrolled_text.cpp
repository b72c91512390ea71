#include "host/desktop/scrolled_text.h"

#include <QScrollBar>
#include <algorithm>

namespace ferrowind::host {
namespace {

constexpr int kMostLines = 6;
constexpr int kUsualWidth = 400;

}  // namespace

ScrolledText::ScrolledText(const QString& name, QWidget* parent) : QScrollArea(parent), label_(new QLabel) {
  label_->setObjectName(name);
  label_->setTextFormat(Qt::PlainText);
  label_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  // A path has no blank to break the line at; it may still be longer than the line.
  label_->setWordWrap(true);
  label_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  setWidget(label_);
  setWidgetResizable(true);
  setFrameShape(QFrame::NoFrame);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  // The bar behind it gives the colour.
  viewport()->setAutoFillBackground(false);
  label_->setAutoFillBackground(false);
  most_height_ = kMostLines * fontMetrics().lineSpacing();
  QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
  FollowLength();
}

void ScrolledText::SetText(const QString& text) {
  label_->setText(text);
  verticalScrollBar()->setValue(0);
  updateGeometry();
  FollowLength();
}

void ScrolledText::SetMostHeight(int height) {
  const int line = fontMetrics().lineSpacing();
  most_height_ = std::clamp(height, line, kMostLines * line);
  updateGeometry();
  FollowLength();
}

int ScrolledText::heightForWidth(int width) const {
  return std::min(label_->heightForWidth(width), most_height_);
}

QSize ScrolledText::sizeHint() const { return {kUsualWidth, heightForWidth(kUsualWidth)}; }

QSize ScrolledText::minimumSizeHint() const { return {0, fontMetrics().lineSpacing()}; }

void ScrolledText::resizeEvent(QResizeEvent* event) {
  QScrollArea::resizeEvent(event);
  FollowLength();
}

// Only what scrolls is worth a stop of the Tab key.
void ScrolledText::FollowLength() {
  const bool is_cut = label_->heightForWidth(viewport()->width()) > height();
  setFocusPolicy(is_cut ? Qt::TabFocus : Qt::NoFocus);
}

}  // namespace ferrowind::host
