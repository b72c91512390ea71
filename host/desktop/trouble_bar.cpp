#include "host/desktop/trouble_bar.h"

#include <QAccessible>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QShortcut>
#include <QStyle>
#include <QToolButton>

#include "ferrowind/adapters/qt/values/translated.h"

namespace ferrowind::host {
namespace {

constexpr int kIconSize = 20;
constexpr int kDark = 128;
constexpr QMargins kMargins(10, 6, 6, 6);

}  // namespace

TroubleBar::TroubleBar(QWidget* parent)
    : QFrame(parent), text_(new ScrolledText(QStringLiteral("troubleText"))) {
  setObjectName(QStringLiteral("trouble"));
  setFrameShape(QFrame::Box);
  setAutoFillBackground(true);
  auto* const icon = new QLabel;
  icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(kIconSize));
  auto* const dismiss = new QToolButton;
  dismiss->setObjectName(QStringLiteral("dismissTrouble"));
  // A letter is sharp at every scale and follows the theme, unlike the style's own icon.
  dismiss->setText(QStringLiteral("\u00D7"));
  QFont letter = dismiss->font();
  letter.setPointSizeF(letter.pointSizeF() * 1.3);
  dismiss->setFont(letter);
  dismiss->setAutoRaise(true);
  dismiss->setFocusPolicy(Qt::TabFocus);
  const QKeySequence keys(Qt::SHIFT | Qt::Key_Escape);
  dismiss->setToolTip(qt::Translated("Hide (%1)").arg(keys.toString(QKeySequence::NativeText)));
  dismiss->setAccessibleName(qt::Translated("Hide"));
  connect(dismiss, &QToolButton::clicked, this, &TroubleBar::Dismissed);
  // Not the button's own, which would press it for show and act only after that.
  connect(new QShortcut(keys, this), &QShortcut::activated, this, &TroubleBar::Dismissed);
  auto* const layout = new QHBoxLayout(this);
  layout->setContentsMargins(kMargins);
  layout->setSpacing(10);
  layout->addWidget(icon, 0, Qt::AlignTop);
  layout->addWidget(text_, 1);
  layout->addWidget(dismiss, 0, Qt::AlignTop);
  FollowTheme();
  hide();
}

void TroubleBar::Tell(const QString& text) {
  text_->SetText(text);
  setVisible(!text.isEmpty());
  if (text.isEmpty()) return;
  // For those who do not see that it appears.
  QAccessibleEvent alert(&text_->Label(), QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

void TroubleBar::SetMostHeight(int height) {
  text_->SetMostHeight(height - kMargins.top() - kMargins.bottom() - 2 * frameWidth());
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
  colors.setColor(QPalette::ButtonText, colors.color(QPalette::WindowText));
  setPalette(colors);
}

}  // namespace ferrowind::host
