#include "ferrowind/adapters/qt/services/qt_words.h"

#include <QCoreApplication>
#include <limits>

#include "ferrowind/adapters/qt/values/qt_text.h"
#include "ferrowind/adapters/qt/values/translated.h"

namespace ferrowind::qt {

std::optional<std::string> QtWords::Translate(const std::string& text,
                                              std::optional<std::int64_t> number) const {
  constexpr int kNoNumber = -1;
  // Qt takes a number below 0 for none, and no greater one than an int holds.
  if (number && (*number < 0 || *number > std::numeric_limits<int>::max())) return std::nullopt;
  const int plural = number ? static_cast<int>(*number) : kNoNumber;
  const QString translated = QCoreApplication::translate(kTextContext, text.c_str(), nullptr, plural);
  // Without a translation the text comes back, with the number in it.
  QString unchanged = ToQt(text);
  if (number) unchanged.replace(QLatin1String("%n"), QString::number(plural));
  if (translated == unchanged) return std::nullopt;
  return FromQt(translated);
}

}  // namespace ferrowind::qt
