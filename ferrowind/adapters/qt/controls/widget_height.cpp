#include "ferrowind/adapters/qt/controls/widget_height.h"

#include <QLayout>

#include "ferrowind/adapters/qt/values/twips.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::qt {

float HeightOf(const QWidget& widget) { return TwipsY(widget.height()); }

void SetHeightOf(QWidget& widget, float height) {
  if (!(height >= 0)) throw platform::InvalidArgument();
  widget.resize(widget.width(), PixelsY(height));
  QLayout* layout = widget.parentWidget() == nullptr ? nullptr : widget.parentWidget()->layout();
  if (layout == nullptr || layout->indexOf(&widget) < 0) return;
  // Otherwise the widget would overlap its neighbours until something else happens to wake the layout.
  layout->invalidate();
  layout->activate();
}

}  // namespace ferrowind::qt
