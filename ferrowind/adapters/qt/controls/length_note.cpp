#include "ferrowind/adapters/qt/controls/length_note.h"

#include <QLocale>
#include <QPoint>
#include <QToolTip>

#include "ferrowind/adapters/glyphs/glyphs.h"
#include "ferrowind/adapters/qt/look/line_icon.h"
#include "ferrowind/adapters/qt/look/refusal_color.h"
#include "ferrowind/adapters/qt/values/translated.h"

namespace ferrowind::qt {

LengthNote::LengthNote(QLineEdit& line, qsizetype most_characters)
    : QObject(&line), line_(line), most_characters_(most_characters), mark_(new QAction(this)) {
  mark_->setVisible(false);
  line_.addAction(mark_, QLineEdit::TrailingPosition);
  connect(&line_, &QLineEdit::textChanged, this, [this] { Look(); });
  Look();
}

void LengthNote::Look() {
  // Code points, as the database counts.
  const qsizetype count = line_.text().trimmed().toUcs4().size();
  if (count <= most_characters_) return Tell({});
  const QLocale& locale = line_.locale();
  Tell(Translated("This text has %1 characters; %2 at most can be stored.")
           .arg(locale.toString(count), locale.toString(most_characters_)));
}

void LengthNote::Tell(const QString& text) {
  if (text == told_) return;
  if (told_.isEmpty()) {
    description_before_ = line_.accessibleDescription();
    mark_->setIcon(LineIcon(glyphs::WarningGlyph, RefusalColor(line_.palette())));
  }
  told_ = text;
  mark_->setToolTip(text);
  mark_->setVisible(!text.isEmpty());
  line_.setAccessibleDescription(text.isEmpty() ? description_before_ : text);
  if (text.isEmpty()) {
    QToolTip::hideText();
  } else if (line_.hasFocus()) {
    QToolTip::showText(line_.mapToGlobal(QPoint(0, line_.height())), text, &line_);
  }
}

}  // namespace ferrowind::qt
