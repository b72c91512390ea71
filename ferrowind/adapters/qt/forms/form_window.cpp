#include "ferrowind/adapters/qt/forms/form_window.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QApplication>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLayout>
#include <QPushButton>
#include <QScreen>
#include <algorithm>
#include <utility>

#include "ferrowind/adapters/qt/forms/dialog_keys.h"
#include "ferrowind/adapters/qt/look/program_icon.h"

namespace ferrowind::qt {

using platform::FormBorder;

namespace {

Qt::WindowFlags FlagsOf(FormBorder border) {
  switch (border) {
    case FormBorder::kSizable:
      return Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMinMaxButtonsHint |
             Qt::WindowCloseButtonHint;
    case FormBorder::kFixedDialog:
      return Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::MSWindowsFixedSizeDialogHint;
    case FormBorder::kClosableDialog:
      return Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
             Qt::WindowCloseButtonHint | Qt::MSWindowsFixedSizeDialogHint;
    case FormBorder::kNone:
      return Qt::Dialog | Qt::FramelessWindowHint;
  }
  return Qt::Window;
}

/// A window that the operator can resize is no dialog to them, though its class is one. Asked each time,
/// since an assistive tool may know the window before it has its border.
class AccessibleFormWindow final : public QAccessibleWidget {
 public:
  explicit AccessibleFormWindow(FormWindow& window) : QAccessibleWidget(&window), window_(window) {}

  [[nodiscard]] QAccessible::Role role() const override {
    if (!window_.isWindow()) return QAccessible::Grouping;
    return window_.Border() == FormBorder::kSizable ? QAccessible::Window : QAccessible::Dialog;
  }

 private:
  FormWindow& window_;
};

/// Null for everything but the forms' windows. The accessibility framework owns what is made.
QAccessibleInterface* AccessibleWindow(const QString& class_name, QObject* object) {
  auto* window = qobject_cast<FormWindow*>(object);
  if (window == nullptr || class_name != QLatin1String(FormWindow::staticMetaObject.className()))
    return nullptr;
  return new AccessibleFormWindow(*window);
}

/// The memory of a window grows with its area, so that a size from a damaged setting could end the host.
QSize Affordable(const QSize& size) {
  constexpr int kLargestSide = 8192;
  const QScreen* screen = QGuiApplication::primaryScreen();
  const QSize desktop = screen == nullptr ? QSize() : screen->virtualSize();
  return size.boundedTo(desktop.expandedTo({kLargestSide, kLargestSide}));
}

/// The largest size that a window centred on the screen may have without leaving what of the screen is free.
QSize CentredRoom() {
  const QScreen* screen = QGuiApplication::primaryScreen();
  if (screen == nullptr) return {QWIDGETSIZE_MAX, QWIDGETSIZE_MAX};
  const QRect all = screen->geometry();
  const QRect room = screen->availableGeometry();
  const int beside = std::max({0, room.left() - all.left(), all.right() - room.right()});
  const int above = std::max({0, room.top() - all.top(), all.bottom() - room.bottom()});
  return all.size() - 2 * QSize(beside, above);
}

}  // namespace

FormWindow::FormWindow() {
  // Does nothing when it is installed already.
  QAccessible::installFactory(AccessibleWindow);
  setSizeGripEnabled(false);
  // A host's own icon tells the operator where the window belongs.
  if (QApplication::windowIcon().isNull()) setWindowIcon(ProgramIcon());
}

FormWindow::~FormWindow() {
  callbacks_ = {};
  // Before the widgets that it uses.
  retired_form_.reset();
}

void FormWindow::SetBorder(FormBorder border) {
  border_ = border;
  setWindowFlags(FlagsOf(border));
}

void FormWindow::PutInto(QWidget& place) {
  setParent(&place, Qt::Widget);
  // The place has margins of its own.
  if (layout() != nullptr) layout()->setContentsMargins({});
  if (place.layout() != nullptr) place.layout()->addWidget(this);
}

void FormWindow::SetTypingTarget(QLineEdit& line) { typing_target_ = &line; }

void FormWindow::SetDesignedSize(const QSize& size) {
  if (!isWindow()) return;
  designed_size_ = size;
  if (IsFixed()) {
    FitToTexts();
  } else if (!size.isEmpty()) {
    resize(size.boundedTo(CentredRoom()).expandedTo(minimumSizeHint()));
  }
}

QSize FormWindow::OuterSize() const {
  if (!wanted_outer_size_.isEmpty() && !isVisible()) return wanted_outer_size_;
  return frameGeometry().size();
}

void FormWindow::SetOuterSize(const QSize& size) {
  if (!isWindow()) return;
  if (IsFixed()) return SetDesignedSize(Affordable(size) - FrameExtents());
  wanted_outer_size_ = Affordable(size);
  extents_applied_ = FrameExtents();
  resize((wanted_outer_size_ - extents_applied_).expandedTo({0, 0}));
}

void FormWindow::SetOuterPosition(const QPoint& position) {
  if (!isWindow()) return;
  is_placed_ = true;
  move(position);
}

void FormWindow::RetireWith(std::shared_ptr<void> form) {
  retired_form_ = std::move(form);
  hide();
  deleteLater();
}

void FormWindow::done(int /*result*/) {}

void FormWindow::reject() {}

bool FormWindow::event(QEvent* event) {
  const bool is_handled = QDialog::event(event);
  if (event->type() == QEvent::LayoutRequest && IsFixed()) FitToTexts();
  if (event->type() == QEvent::Show) MakeUpForFrame();
  return is_handled;
}

void FormWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  const auto close_asked = callbacks_.close_asked;
  // A dialog without a window menu has no box to close it; a key of the desktop must not close it either.
  if (border_ == FormBorder::kFixedDialog || border_ == FormBorder::kNone || !close_asked) return;
  close_asked();
  event->setAccepted(!isVisible());
}

void FormWindow::hideEvent(QHideEvent* event) {
  QDialog::hideEvent(event);
  // Minimising is told as a hiding too, but leaves the window shown.
  const auto hidden = callbacks_.hidden;
  if (!event->spontaneous() && hidden) hidden();
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
  if (PressButtonOfKey(*this, *event) || TypeIntoTarget(*event)) return;
  if (closes_by_escape_ && event->key() == Qt::Key_Escape && IsPlainKey(*event)) {
    close();
  } else {
    event->ignore();
  }
}

bool FormWindow::TypeIntoTarget(QKeyEvent& event) {
  constexpr auto kOfText = Qt::ShiftModifier | Qt::KeypadModifier | Qt::GroupSwitchModifier;
  const QString text = event.text();
  const bool is_text = !text.isEmpty() && text[0].isPrint() && !text[0].isSpace() &&
                       (event.modifiers() & ~kOfText) == Qt::NoModifier;
  if (!is_text || typing_target_ == nullptr || typing_target_->hasFocus() || !typing_target_->isEnabled())
    return false;
  typing_target_->setFocus();
  return typing_target_->event(&event);
}

void FormWindow::moveEvent(QMoveEvent* event) {
  QDialog::moveEvent(event);
  MakeUpForFrame();
}

void FormWindow::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  if (event->spontaneous()) wanted_outer_size_ = {};
  const auto resized = callbacks_.resized;
  if (resized) resized();
}

QSize FormWindow::FrameExtents() const { return frameGeometry().size() - size(); }

void FormWindow::FitToTexts() {
  if (layout() == nullptr) return;
  layout()->activate();
  const QSize needed = layout()->totalSizeHint();
  QSize fitting = designed_size_.expandedTo(needed);
  if (layout()->hasHeightForWidth()) {
    fitting.setHeight(std::max(designed_size_.height(), layout()->totalHeightForWidth(fitting.width())));
  }
  if (fitting != size() || minimumSize() != fitting) setFixedSize(fitting);
}

void FormWindow::MakeUpForFrame() {
  if (wanted_outer_size_.isEmpty() || !isVisible() || isMaximized() || isMinimized()) return;
  if (FrameExtents() == extents_applied_) return;
  extents_applied_ = FrameExtents();
  resize((wanted_outer_size_ - extents_applied_).expandedTo({0, 0}));
}

}  // namespace ferrowind::qt
