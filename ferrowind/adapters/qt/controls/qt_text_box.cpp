#include "ferrowind/adapters/qt/controls/qt_text_box.h"

#include <QFocusEvent>
#include <algorithm>
#include <limits>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::qt {

class QtTextBox::FocusWatch : public QObject {
 public:
  explicit FocusWatch(QtTextBox& box) : box_(box) { box_.line_.installEventFilter(this); }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::FocusOut) {
      const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
      if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason)
        box_.Raise(box_.lost_focus_);
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  QtTextBox& box_;
};

QtTextBox::QtTextBox(QLineEdit& line)
    : QtControl(line), line_(line), focus_watch_(std::make_unique<FocusWatch>(*this)) {
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

platform::Subscription QtTextBox::OnLostFocus(std::function<void()> handler) {
  return lost_focus_.Subscribe(std::move(handler));
}

void QtTextBox::LimitTyping(qsizetype length_now) {
  // The limit binds the operator alone, while the line edit would also cut the program's text down to it.
  constexpr auto kNoLimit = std::numeric_limits<int>::max();
  line_.setMaxLength(max_length_ == 0 ? kNoLimit : std::max(max_length_, static_cast<int>(length_now)));
}

}  // namespace ferrowind::qt
