#include "ferrowind/adapters/qt/controls/date_field.h"

#include <QAction>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QWheelEvent>

#include "ferrowind/adapters/glyphs/glyphs.h"
#include "ferrowind/adapters/qt/controls/select_on_focus.h"
#include "ferrowind/adapters/qt/look/line_icon.h"
#include "ferrowind/adapters/qt/look/refusal_color.h"
#include "ferrowind/adapters/qt/values/translated.h"

namespace ferrowind::qt {
namespace {

constexpr int kWheelStep = 120;
constexpr qreal kEdgeWidth = 2;
constexpr qreal kEdgeRadius = 2;

bool OpensCalendar(const QKeyEvent& event) {
  const bool is_alt_down = event.key() == Qt::Key_Down && event.modifiers().testFlag(Qt::AltModifier);
  const bool is_f4 = event.key() == Qt::Key_F4 && event.modifiers() == Qt::NoModifier;
  return is_alt_down || is_f4;
}

/// The day that a key steps to; none for any other key.
QDate SteppedBy(const QKeyEvent& event, const QDate& date) {
  if ((event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) return {};
  switch (event.key()) {
    case Qt::Key_Up:
      return date.addDays(1);
    case Qt::Key_Down:
      return date.addDays(-1);
    case Qt::Key_PageUp:
      return date.addMonths(1);
    case Qt::Key_PageDown:
      return date.addMonths(-1);
    default:
      return {};
  }
}

}  // namespace

DateField::DateField(QWidget* parent) : QLineEdit(parent), reader_(std::make_unique<DateReader>(locale())) {
  new SelectOnFocus(*this);
  QAction* open = addAction(LineIcon(glyphs::CalendarGlyph), QLineEdit::TrailingPosition);
  open->setText(Translated("Choose a day"));
  open->setToolTip(Translated("Choose a day (Alt+Down)"));
  connect(open, &QAction::triggered, this, &DateField::OpenCalendar);
  connect(this, &QLineEdit::textEdited, this, &DateField::NoticeTyping);
  ShowDate(date_);
}

DateField::~DateField() = default;

QDate DateField::Date() const {
  const QDate typed = is_typed_ ? Typed().date : QDate();
  return typed.isValid() ? typed : date_;
}

void DateField::SetDate(const QDate& date) { ShowDate(date); }

void DateField::SetFormat(const QString& format) {
  format_ = format;
  if (!is_typed_) ShowDate(date_);
}

bool DateField::TakeTyped() {
  if (!is_typed_) return true;
  const DateReading typed = Typed();
  if (typed.date.isValid()) {
    ShowDate(typed.date);
  } else {
    Refuse(typed.refusal);
  }
  return typed.date.isValid();
}

void DateField::changeEvent(QEvent* event) {
  QLineEdit::changeEvent(event);
  if (event->type() != QEvent::LocaleChange) return;
  reader_ = std::make_unique<DateReader>(locale());
  if (is_typed_) {
    NoticeTyping();
  } else {
    ShowDate(date_);
  }
}

void DateField::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  // The operator comes back from another window or the field's own menu and goes on typing.
  if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason) TakeTyped();
}

void DateField::hideEvent(QHideEvent* event) {
  QLineEdit::hideEvent(event);
  if (!event->spontaneous() && IsRefused()) Q_EMIT RefusalChanged({});
}

void DateField::showEvent(QShowEvent* event) {
  QLineEdit::showEvent(event);
  if (!event->spontaneous() && IsRefused()) Q_EMIT RefusalChanged(refusal_);
}

void DateField::keyPressEvent(QKeyEvent* event) {
  if (OpensCalendar(*event)) return OpenCalendar();
  if (const QDate stepped = SteppedBy(*event, Date()); stepped.isValid()) {
    if (TakeTyped()) StepTo(stepped);
    return;
  }
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) TakeTyped();
  QLineEdit::keyPressEvent(event);
}

void DateField::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  if (!IsRefused()) return;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(RefusalColor(palette()), kEdgeWidth));
  const qreal inset = kEdgeWidth / 2;
  painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), kEdgeRadius, kEdgeRadius);
}

void DateField::wheelEvent(QWheelEvent* event) {
  // A wheel that passes over the field on its way must not change the day.
  if (!hasFocus()) return event->ignore();
  event->accept();
  wheel_angle_ += event->angleDelta().y();
  const int days = wheel_angle_ / kWheelStep;
  wheel_angle_ %= kWheelStep;
  if (days != 0 && TakeTyped()) StepTo(date_.addDays(days));
}

void DateField::NoticeTyping() {
  is_typed_ = true;
  // A text that is still being typed is not marked; one that was marked tells how it stands.
  if (IsRefused()) Refuse(Typed().refusal);
}

DateReading DateField::Typed() const { return reader_->Read(text(), date_.year()); }

void DateField::StepTo(const QDate& date) {
  ShowDate(date.year() == date_.year() ? date : date_);
  selectAll();
}

void DateField::ShowDate(const QDate& date) {
  date_ = date;
  is_typed_ = false;
  setText(locale().toString(date, format_));
  Refuse({});
}

void DateField::Refuse(const QString& refusal) {
  if (refusal == refusal_) return;
  refusal_ = refusal;
  setAccessibleDescription(refusal);
  update();
  if (isVisible() || refusal.isEmpty()) Q_EMIT RefusalChanged(refusal);
}

CalendarPopup* DateField::Popup() const {
  // A closed one is still there until the event loop deletes it.
  return popup_ != nullptr && popup_->isVisible() ? popup_ : nullptr;
}

void DateField::OpenCalendar() {
  if (Popup() != nullptr || !isEnabled() || isReadOnly()) return;
  setFocus();
  popup_ = new CalendarPopup(*this, Date());
  connect(popup_, &CalendarPopup::Chosen, this, [this](const QDate& date) {
    ShowDate(date);
    selectAll();
  });
  popup_->Open();
}

}  // namespace ferrowind::qt
