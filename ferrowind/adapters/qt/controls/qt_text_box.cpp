#include "ferrowind/adapters/qt/controls/qt_text_box.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <algorithm>
#include <limits>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::qt {

namespace {

bool IsEnter(const QKeyEvent& event) {
  return (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) &&
         (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

/// Alt and a letter press the button that underlines it. While that button cannot be pressed, the letter is
/// no text either. (Where the system types other characters with this key, it does not underline any.)
bool IsOfAButton(const QKeyEvent& event) {
#ifdef Q_OS_MACOS
  (void)event;
  return false;
#else
  constexpr auto kOther = Qt::ControlModifier | Qt::GroupSwitchModifier;
  const QString text = event.text();
  return event.modifiers().testFlag(Qt::AltModifier) && (event.modifiers() & kOther) == Qt::NoModifier &&
         !text.isEmpty() && text[0].isPrint();
#endif
}

}  // namespace

class QtTextBox::LineWatch : public QObject {
 public:
  explicit LineWatch(QtTextBox& box) : box_(box) { box_.line_.installEventFilter(this); }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::FocusOut) {
      const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
      if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason)
        box_.Raise(box_.lost_focus_);
    }
    if (event->type() == QEvent::KeyPress && box_.takes_enter_ && IsEnter(*static_cast<QKeyEvent*>(event))) {
      box_.Raise(box_.entered_);
      return true;
    }
    if (event->type() == QEvent::KeyPress && IsOfAButton(*static_cast<QKeyEvent*>(event))) {
      event->ignore();
      return true;
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  QtTextBox& box_;
};

QtTextBox::QtTextBox(QLineEdit& line)
    : QtControl(line), line_(line), line_watch_(std::make_unique<LineWatch>(*this)) {
  LimitTyping(line_.text().size());
  QObject::connect(&line_, &QLineEdit::textChanged, Context(), [this] { Raise(changed_); });
}

QtTextBox::~QtTextBox() = default;

std::string QtTextBox::Text() const { return FromQt(line_.text()); }

void QtTextBox::SetText(const std::string& text) {
  const QString new_text = ToQt(text);
  if (new_text == line_.text()) return;
  LimitTyping(new_text.size());
  line_.setText(new_text);
}

void QtTextBox::SetMaxLength(std::int32_t characters) {
  if (characters < 0) throw platform::InvalidArgument();
  max_length_ = characters;
  LimitTyping(line_.text().size());
}

void QtTextBox::SelectAll() { line_.selectAll(); }

platform::Subscription QtTextBox::OnChange(std::function<void()> handler) {
  return changed_.Subscribe(std::move(handler));
}

void QtTextBox::SetPlaceholder(const std::string& text) { line_.setPlaceholderText(ToQt(text)); }

platform::Subscription QtTextBox::OnEnter(std::function<void()> handler) {
  takes_enter_ = true;
  return entered_.Subscribe(std::move(handler));
}

platform::Subscription QtTextBox::OnLostFocus(std::function<void()> handler) {
  return lost_focus_.Subscribe(std::move(handler));
}

void QtTextBox::LimitTyping(qsizetype length_now) {
  // The limit binds the operator alone, while the line edit would also cut the program's text down to it.
  constexpr auto kNoLimit = std::numeric_limits<int>::max();
  line_.setMaxLength(max_length_ == 0 ? kNoLimit : std::max(max_length_, static_cast<int>(length_now)));
}

}  // namespace ferrowind::qt
