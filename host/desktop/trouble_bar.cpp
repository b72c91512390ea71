#include "host/desktop/trouble_bar.h"

#include <QAccessible>
#include <QEvent>
#include <QHBoxLayout>
#include <QStyle>
#include <QToolButton>

namespace ferrowind::host {
namespace {

constexpr int kIconSize = 20;
constexpr int kDark = 128;

}  // namespace

TroubleBar::TroubleBar(QWidget* parent) : QFrame(parent), text_(new QLabel) {
  setObjectName(QStringLiteral("trouble"));
  setFrameShape(QFrame::Box);
  setAutoFillBackground(true);
  auto* const icon = new QLabel;
  icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(kIconSize));
  text_->setObjectName(QStringLiteral("troubleText"));
  text_->setTextFormat(Qt::PlainText);
  text_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  text_->setWordWrap(true);
  auto* const dismiss = new QToolButton;
  dismiss->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
  dismiss->setAutoRaise(true);
  dismiss->setFocusPolicy(Qt::NoFocus);
  dismiss->setToolTip(tr("Hide"));
  dismiss->setAccessibleName(tr("Hide"));
  connect(dismiss, &QToolButton::clicked, this, [this] {
    hide();
    emit Dismissed();
  });
  auto* const layout = new QHBoxLayout(this);
  layout->setContentsMargins(10, 6, 6, 6);
  layout->setSpacing(10);
  layout->addWidget(icon, 0, Qt::AlignTop);
  layout->addWidget(text_, 1);
  layout->addWidget(dismiss, 0, Qt::AlignTop);
  FollowTheme();
  hide();
}

void TroubleBar::Tell(const QString& text) {
  text_->setText(text);
  setVisible(!text.isEmpty());
  if (text.isEmpty()) return;
  // For those who do not see that it appears.
  QAccessibleEvent alert(text_, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

void TroubleBar::changeEvent(QEvent* event) {
  if (event->type() == QEvent::ApplicationPaletteChange) FollowTheme();
  QFrame::changeEvent(event);
}

void TroubleBar::FollowTheme() {
  const bool is_dark = QPalette().color(QPalette::Window).lightness() < kDark;
  QPalette colors;
  colors.setColor(QPalette::Window, is_dark ? QColor(0x4a, 0x3a, 0x12) : QColor(0xff, 0xf3, 0xcf));
  colors.setColor(QPalette::WindowText, is_dark ? QColor(0xff, 0xec, 0xb8) : QColor(0x4d, 0x38, 0x00));
  setPalette(colors);
}

}  // namespace ferrowind::host
