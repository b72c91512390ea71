#include "ferrowind/adapters/qt/forms/left_out_controls.h"

#include <QSet>
#include <QSplitterHandle>
#include <QString>
#include <algorithm>

#include "ferrowind/adapters/qt/forms/control_maker.h"
#include "ferrowind/adapters/qt/values/qt_text.h"

namespace ferrowind::qt {
namespace {

QList<QWidget*> ContentOf(const QWidget& holder) {
  QList<QWidget*> content = holder.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
  content.removeIf(
      [](const QWidget* child) { return qobject_cast<const QSplitterHandle*>(child) != nullptr; });
  return content;
}

/// True when something was left out.
bool LeaveOutBelow(const QWidget& holder, const QSet<QString>& designed) {
  bool has_left_out = false;
  for (QWidget* child : ContentOf(holder)) {
    const bool is_designed = designed.contains(child->objectName());
    bool is_left_out = !is_designed && CanBeControl(*child);
    if (!is_left_out && CanHoldControls(*child)) {
      const bool is_smaller = LeaveOutBelow(*child, designed);
      has_left_out = has_left_out || is_smaller;
      is_left_out = is_smaller && !is_designed && ContentOf(*child).isEmpty();
    }
    if (!is_left_out) continue;
    delete child;
    has_left_out = true;
  }
  return has_left_out;
}

}  // namespace

void LeaveOutUndesigned(QDialog& window, const platform::FormDesign& design) {
  QSet<QString> designed;
  for (const platform::ControlDesign& control : design.controls) designed.insert(ToQt(control.name));
  LeaveOutBelow(window, designed);
}

}  // namespace ferrowind::qt
