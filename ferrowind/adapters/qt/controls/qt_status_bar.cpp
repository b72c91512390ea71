#include "ferrowind/adapters/qt/controls/qt_status_bar.h"

#include <QVariant>
#include <algorithm>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::qt {

QtStatusBar::QtStatusBar(QStatusBar& bar) : QtControl(bar) {
  const int count = std::max(1, bar.property("panels").toInt());
  for (int panel = 1; panel <= count; ++panel) {
    auto* label = new QLabel(&bar);
    label->setObjectName(QStringLiteral("%1Panel%2").arg(bar.objectName()).arg(panel));
    label->setTextFormat(Qt::PlainText);
    // A long text is cut off rather than made to widen the window.
    label->setMinimumWidth(1);
    bar.addWidget(label, 1);
    panels_.push_back(label);
  }
}

std::string QtStatusBar::PanelText(std::int32_t panel) const { return FromQt(Panel(panel).text()); }

void QtStatusBar::SetPanelText(std::int32_t panel, const std::string& text) {
  Panel(panel).setText(ToQt(text));
}

QLabel& QtStatusBar::Panel(std::int32_t panel) const {
  if (panel < 1 || panel > static_cast<std::int32_t>(panels_.size())) throw platform::SubscriptOutOfRange();
  return *panels_[static_cast<std::size_t>(panel) - 1];
}

}  // namespace ferrowind::qt
