#include "ferrowind/adapters/qt/table/cell_words.h"

#include "ferrowind/adapters/qt/values/qt_text.h"
#include "ferrowind/adapters/qt/values/translated.h"

namespace ferrowind::qt {

QString MarkWord(platform::CellMark mark) { return Translated(platform::WordOf(mark)); }

QString SpokenText(const platform::TableCell& cell) {
  const QString text = ToQt(cell.text);
  const QString word = MarkWord(cell.mark);
  if (word.isEmpty() || text.contains(word, Qt::CaseInsensitive)) return text;
  return text.isEmpty() ? word : word + QStringLiteral(": ") + text;
}

}  // namespace ferrowind::qt
