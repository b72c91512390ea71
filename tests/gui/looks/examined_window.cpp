#include "tests/gui/looks/examined_window.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QComboBox>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QToolButton>
#include <algorithm>

#include "ferrowind/adapters/qt/grid/grid_view.h"
#include "ferrowind/adapters/qt/look/contrast.h"
#include "ferrowind/adapters/qt/table/table_view.h"

namespace ferrowind::gui {
namespace {

using qt::Contrast;
using qt::kMarkContrast;
using qt::kTextContrast;

constexpr QSize kSmallScreen(800, 600);
constexpr QSize kFrame(10, 30);

std::string NameOf(const QWidget& widget) {
  const QString name = widget.objectName();
  return (name.isEmpty() ? QString::fromLatin1(widget.metaObject()->className()) : name).toStdString();
}

/// The visible widgets of a window that belong to it, not to windows of its own.
std::vector<QWidget*> WidgetsOf(const QWidget& window) {
  std::vector<QWidget*> widgets;
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    if (widget->window() == &window && widget->isVisible() && !widget->visibleRegion().isEmpty())
      widgets.push_back(widget);
  }
  return widgets;
}

/// What the widget itself writes, where that is one line.
QString TextOf(const QWidget& widget) {
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) return label->text();
  if (const auto* button = qobject_cast<const QToolButton*>(&widget))
    return button->icon().isNull() ? button->text() : QString();
  if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) return button->text();
  if (const auto* line = qobject_cast<const QLineEdit*>(&widget))
    return line->text().isEmpty() ? line->placeholderText() : line->text();
  if (const auto* box = qobject_cast<const QComboBox*>(&widget)) return box->currentText();
  if (const auto* edit = qobject_cast<const QPlainTextEdit*>(&widget)) return edit->toPlainText();
  return {};
}

QColor GroundOf(const QImage& picture, const QRect& area) {
  QHash<QRgb, int> counts;
  QRgb most = picture.pixel(area.center());
  for (int y = area.top(); y <= area.bottom(); ++y) {
    for (int x = area.left(); x <= area.right(); ++x) {
      const QRgb color = picture.pixel(x, y);
      if (++counts[color] > counts.value(most)) most = color;
    }
  }
  return QColor(most);
}

/// How far what stands out most does so from the ground.
double StrongestContrast(const QImage& picture, const QRect& area) {
  const QColor ground = GroundOf(picture, area);
  QHash<QRgb, double> known;
  double strongest = 1;
  for (int y = area.top(); y <= area.bottom(); ++y) {
    for (int x = area.left(); x <= area.right(); ++x) {
      const QRgb color = picture.pixel(x, y);
      if (!known.contains(color)) known.insert(color, Contrast(QColor(color), ground));
      strongest = std::max(strongest, known.value(color));
    }
  }
  return strongest;
}

/// One in each column and row that begins to be seen at a few heights of the view, which tell all shades.
std::vector<QModelIndex> CellsOnShow(const QAbstractItemView& view) {
  constexpr int kRows = 6;
  std::vector<QModelIndex> cells;
  const QRect room = view.viewport()->rect();
  for (int row = 0; row < kRows; ++row) {
    for (int x = 2; x < room.width(); x += 10) {
      const QModelIndex index = view.indexAt({x, 4 + row * view.fontMetrics().height() * 3 / 2});
      if (index.isValid() && std::find(cells.begin(), cells.end(), index) == cells.end())
        cells.push_back(index);
    }
  }
  return cells;
}

/// How many pixels differ between two pictures of one size by as much as a mark must.
int ChangedPixels(const QImage& before, const QImage& after) {
  int changed = 0;
  QHash<quint64, bool> known;
  for (int y = 0; y < before.height(); ++y) {
    for (int x = 0; x < before.width(); ++x) {
      const QRgb one = before.pixel(x, y);
      const QRgb other = after.pixel(x, y);
      if (one == other) continue;
      const quint64 pair = quint64{one} << 32U | other;
      if (!known.contains(pair)) known.insert(pair, Contrast(QColor(one), QColor(other)) >= kMarkContrast);
      if (known.value(pair)) ++changed;
    }
  }
  return changed;
}

std::string PlaceOf(const QRect& area) {
  return QStringLiteral("%1 to %2, %3 to %4")
      .arg(area.left())
      .arg(area.right())
      .arg(area.top())
      .arg(area.bottom())
      .toStdString();
}

std::string Measured(double contrast) { return QString::number(contrast, 'f', 1).toStdString() + " to 1"; }

bool HasEdge(const QWidget& widget) {
  const auto* line = qobject_cast<const QLineEdit*>(&widget);
  if (line != nullptr)
    return line->hasFrame() && qobject_cast<const QComboBox*>(widget.parentWidget()) == nullptr;
  return qobject_cast<const QPushButton*>(&widget) != nullptr ||
         qobject_cast<const QComboBox*>(&widget) != nullptr;
}

}  // namespace

ExaminedWindow::ExaminedWindow(QWidget& window) : window_(window), picture_(Grab(window.rect())) {}

QImage ExaminedWindow::Grab(const QRect& part) const {
  QCoreApplication::processEvents();
  return window_.grab(part).toImage().convertToFormat(QImage::Format_RGB32);
}

QRect ExaminedWindow::InPicture(const QWidget& widget, const QRect& part) const {
  const double scale = window_.devicePixelRatioF();
  const QRect area(widget.mapTo(&window_, part.topLeft()), part.size());
  const QRect scaled(qRound(area.left() * scale), qRound(area.top() * scale), qRound(area.width() * scale),
                     qRound(area.height() * scale));
  return scaled.intersected(picture_.rect());
}

std::vector<std::string> ExaminedWindow::FaultsOfRoom() const {
  std::vector<std::string> faults;
  const QSize smallest = window_.minimumSizeHint().expandedTo(window_.minimumSize()) + kFrame;
  if (smallest.boundedTo(kSmallScreen) != smallest) {
    faults.push_back(NameOf(window_) + " needs " + std::to_string(smallest.width()) + " x " +
                     std::to_string(smallest.height()));
  }
  for (const QWidget* widget : WidgetsOf(window_)) {
    const auto* label = qobject_cast<const QLabel*>(widget);
    const bool is_line = label != nullptr && !label->text().isEmpty() && !label->wordWrap();
    if (is_line && widget->width() < widget->sizeHint().width())
      faults.push_back(NameOf(*widget) + " is cut");
    if (label != nullptr && label->wordWrap() && widget->height() < label->heightForWidth(widget->width()))
      faults.push_back(NameOf(*widget) + " has lines that are cut");
    const auto* table = qobject_cast<const qt::TableView*>(widget);
    if (table != nullptr && table->horizontalScrollBar()->maximum() > 0)
      faults.push_back(NameOf(*widget) + " has columns that are scrolled out of sight by " +
                       std::to_string(table->horizontalScrollBar()->maximum()) + " pixels");
    const auto* button = qobject_cast<const QPushButton*>(widget);
    if (button != nullptr && widget->width() < widget->minimumSizeHint().width())
      faults.push_back(NameOf(*widget) + " is cut");
    const QWidget* parent = widget->parentWidget();
    const bool scrolls = qobject_cast<const QAbstractScrollArea*>(parent) != nullptr ||
                         qobject_cast<const QAbstractScrollArea*>(parent->parentWidget()) != nullptr;
    // Mirrored, a splitter's last part stands over its edge by a pixel, of its frame.
    if (!scrolls && !parent->rect().adjusted(-1, 0, 1, 0).contains(widget->geometry())) {
      faults.push_back(NameOf(*widget) + " (" + PlaceOf(widget->geometry()) + ") stands outside of " +
                       NameOf(*parent) + " (" + PlaceOf(parent->rect()) + ")");
    }
  }
  return faults;
}

std::vector<std::string> ExaminedWindow::FaultsOfText() const {
  std::vector<std::string> faults;
  const auto measure = [&](const std::string& what, const QRect& area, double wanted) {
    if (area.width() < 8 || area.height() < 8) return;
    const double contrast = StrongestContrast(picture_, area);
    if (contrast < wanted) faults.push_back(what + " is read at " + Measured(contrast));
  };
  for (const QWidget* widget : WidgetsOf(window_)) {
    if (!widget->isEnabled()) continue;
    constexpr int kEdge = 4;
    if (!TextOf(*widget).trimmed().isEmpty()) {
      const bool is_label = qobject_cast<const QLabel*>(widget) != nullptr;
      const int inset = is_label ? 0 : kEdge;
      measure(NameOf(*widget), InPicture(*widget, widget->rect().adjusted(inset, inset, -inset, -inset)),
              kTextContrast);
    }
    const auto* view = qobject_cast<const QAbstractItemView*>(widget);
    if (view == nullptr || view->model() == nullptr) continue;
    // On light paper the colours that rows are given are kept down to what large text needs.
    const bool is_grid = qobject_cast<const qt::GridView*>(view) != nullptr;
    for (const QModelIndex& index : CellsOnShow(*view)) {
      const QString text = index.data().toString();
      const QRect cell = view->visualRect(index).intersected(view->viewport()->rect()).adjusted(3, 3, -3, -3);
      // One that is scrolled out of view in part may show the part without its text.
      const QRect whole = view->visualRect(index);
      if (whole.left() < 0 || whole.right() > view->viewport()->width()) continue;
      if (text.trimmed().isEmpty() || cell.width() < 20 || cell.height() < view->fontMetrics().height() - 4)
        continue;
      measure(NameOf(*widget) + " \"" + text.toStdString() + "\"", InPicture(*view->viewport(), cell),
              is_grid ? kMarkContrast : kTextContrast);
    }
  }
  std::sort(faults.begin(), faults.end());
  faults.erase(std::unique(faults.begin(), faults.end()), faults.end());
  return faults;
}

std::vector<std::string> ExaminedWindow::FaultsOfEdges() const {
  std::vector<std::string> faults;
  for (const QWidget* widget : WidgetsOf(window_)) {
    if (!widget->isEnabled() || !HasEdge(*widget)) continue;
    const QRect area = InPicture(*widget, widget->rect());
    const int y = area.center().y();
    // The ground is taken a little outside, where the layout leaves room, else from the corner.
    const QColor ground = picture_.pixelColor(std::max(area.left() - 2, 0), y);
    double strongest = 1;
    for (int x = area.left(); x < std::min(area.left() + 5, area.right()); ++x)
      strongest = std::max(strongest, Contrast(picture_.pixelColor(x, y), ground));
    if (strongest < kMarkContrast)
      faults.push_back(NameOf(*widget) + " has an edge of " + Measured(strongest));
  }
  return faults;
}

std::vector<std::string> ExaminedWindow::FaultsOfFocus() const {
  std::vector<std::string> faults;
  std::vector<QWidget*> takers;
  for (QWidget* widget : WidgetsOf(window_)) {
    if (widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus) != 0 && widget->focusProxy() == nullptr)
      takers.push_back(widget);
  }
  if (takers.size() < 2) return faults;
  takers.front()->setFocus(Qt::TabFocusReason);
  for (std::size_t i = 1; i <= takers.size(); ++i) {
    QWidget* widget = takers[i % takers.size()];
    const auto grab = [&] { return Grab({widget->mapTo(&window_, QPoint()), widget->size()}); };
    // While the one before it has the focus.
    const QImage before = grab();
    widget->setFocus(Qt::TabFocusReason);
    const QImage now = grab();
    // About a line along two sides of a small button.
    constexpr int kSeen = 30;
    if (now.size() != before.size()) continue;
    const int changed = ChangedPixels(before, now);
    if (changed < kSeen)
      faults.push_back(NameOf(*widget) + " shows the focus by " + std::to_string(changed) + " pixels");
  }
  return faults;
}

}  // namespace ferrowind::gui
