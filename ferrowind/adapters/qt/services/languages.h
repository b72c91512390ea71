#pragma once

#include <QString>

#include "ferrowind/export.h"

class QCoreApplication;
class QLocale;

namespace ferrowind::qt {

/// Has the component's own texts, and Qt's, said in the first of the locale's languages that there is:
/// German, French, Spanish and Japanese beside English, which the texts are written in. Of the system's
/// locale the variable LANGUAGE may name several languages. Answers the language that is said now, such as
/// "de", or "en".
///
/// Call it once, before the first window is made; `QtWords` as `Platform::words` then has the texts of the
/// additions. The texts that the component was given are English in all languages. A translator that the host
/// installs later goes first: with the context "ferrowind" it replaces texts or adds a language.
FERROWIND_EXPORT QString UseLanguages(QCoreApplication& application, const QLocale& locale);

}  // namespace ferrowind::qt
