#include "ferrowind/adapters/qt/services/languages.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <memory>

#ifdef FERROWIND_HAS_TRANSLATIONS
// Out of a static library nothing else takes the resource along; the macro stands outside of namespaces.
static void TakeTranslationsAlong() { Q_INIT_RESOURCE(ferrowind_translations); }
#endif

namespace ferrowind::qt {
namespace {

const QString kFolder = QStringLiteral(":/ferrowind/translations");

/// Whether the file was there. The translator belongs to the application then.
bool Install(QCoreApplication& application, const QString& file, const QString& folder) {
  auto translator = std::make_unique<QTranslator>(&application);
  if (!translator->load(file, folder)) return false;
  QCoreApplication::installTranslator(translator.release());
  return true;
}

}  // namespace

QString UseLanguages(QCoreApplication& application, const QLocale& locale) {
  const QString english = QStringLiteral("en");
#ifdef FERROWIND_HAS_TRANSLATIONS
  TakeTranslationsAlong();
#endif
  // What is asked for by no language at all, as programs are that others read.
  if (locale.language() == QLocale::C) return english;
  for (const QString& name : locale.uiLanguages()) {
    const QString language = name.section(QLatin1Char('-'), 0, 0);
    if (language == english) return english;
    if (!Install(application, QStringLiteral("ferrowind_") + language, kFolder)) continue;
    // Qt's package of translations may be missing: then its few texts stay English.
    Install(application, QStringLiteral("qtbase_") + language,
            QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    return language;
  }
  return english;
}

}  // namespace ferrowind::qt
