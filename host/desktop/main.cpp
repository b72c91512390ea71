#include <QApplication>
#include <QLocale>
#include <QMessageBox>
#include <QTime>
#include <string>

#include "ferrowind/adapters/qt/look/program_icon.h"
#include "ferrowind/adapters/qt/look/theme.h"
#include "ferrowind/adapters/qt/services/languages.h"
#include "ferrowind/adapters/qt/services/qt_locale.h"
#include "ferrowind/adapters/qt/services/qt_words.h"
#include "ferrowind/adapters/qt/values/translated.h"
#include "ferrowind/adapters/sqlite/memory_limit.h"
#include "ferrowind/platform/values/failure.h"
#include "ferrowind/version.h"

#include "host/delivery/database_version.h"
#include "host/desktop/back_office_window.h"
#include "host/desktop/database_name.h"
#include "host/desktop/desktop_options.h"
#include "host/desktop/desktop_surroundings.h"
#include "host/desktop/news_windows.h"
#include "host/desktop/operator_news.h"
#include "host/desktop/start_page.h"
#include "host/desktop/user_database.h"
#include "host/desktop/wait_cursor.h"
#include "host/session/private_arguments.h"
#include "host/session/shown_connection.h"
#include "host/session/standard_streams.h"

namespace {

using ferrowind::host::BackOfficeWindow;
using ferrowind::host::DesktopOptions;
using ferrowind::host::DesktopSurroundings;
using ferrowind::host::OperatorNews;

/// Runs a step of the start; the operator is told when it fails, and the program goes on without it.
template <typename Step>
void TellWhenFailing(const Step& step) {
  try {
    step();
  } catch (const ferrowind::platform::Failure& failure) {
    QMessageBox::critical(nullptr, QStringLiteral("Ferrowind"),
                          QString::fromStdString(failure.Description()));
  }
}

std::string TimeText() {
  return QLocale().toString(QTime::currentTime(), QStringLiteral("HH:mm:ss")).toStdString();
}

QString DatabaseNameText(const DesktopOptions& options, const ferrowind::platform::Words& words) {
  if (options.database.empty()) return ferrowind::qt::Translated("Calendars of this user");
  return QString::fromStdString(ferrowind::host::DatabaseName(options.database, &words));
}

}  // namespace

int main(int argc, char** argv) {
  ferrowind::host::HoldStandardStreams();
  ferrowind::host::PrivateArguments arguments(argc, argv);
  QCoreApplication::setOrganizationName(QStringLiteral("Tessaro"));
  QCoreApplication::setApplicationName(QStringLiteral("ferrowind"));
  QCoreApplication::setApplicationVersion(QStringLiteral(FERROWIND_VERSION));
  ferrowind::host::ShowTextAskedFor(arguments.BehindName());
  QApplication application(arguments.Count(), arguments.Values());
  ferrowind::qt::UseLanguages(application, QLocale());
  // Qt goes by a translation of its own, which the program may be without.
  QApplication::setLayoutDirection(QLocale().textDirection());
  ferrowind::sqlite::LimitMemoryOfProcess();
  const DesktopOptions options = ferrowind::host::ReadOptions(QApplication::arguments());
  ferrowind::qt::ApplyTheme(application, options.theme);
  QApplication::setDesktopFileName(QStringLiteral("com.tessaro.ferrowind"));
  QApplication::setWindowIcon(ferrowind::qt::ProgramIcon());

  const ferrowind::qt::QtLocale locale;
  const ferrowind::qt::QtWords words;
  OperatorNews news(locale, TimeText, &words);
  const ferrowind::host::WaitCursor wait_cursor(news);
  DesktopSurroundings surroundings(news);
  if (!options.trace_file.isEmpty()) TellWhenFailing([&] { surroundings.TraceTo(options.trace_file); });
  std::string database = options.database;
  if (database.empty()) {
    TellWhenFailing(
        [&] { database = ferrowind::host::UserDatabase(surroundings.Engines(), surroundings.Get().clock); });
    TellWhenFailing([&] { ferrowind::host::UpgradeOwnDatabase(surroundings.Engines(), database); });
  } else {
    TellWhenFailing([&] {
      (void)surroundings.Engines().EngineFor(database);
      ferrowind::host::RequireThisVersion(database);
    });
  }
  surroundings.UseDatabase(database);

  BackOfficeWindow window(surroundings.Get(), DatabaseNameText(options, words),
                          QString::fromStdString(ferrowind::host::ShownConnection(database)));
  const ferrowind::host::NewsWindows news_windows(news, window);
  const ferrowind::host::StartPage start_page(surroundings, news, window);
  window.show();
  if (options.open) window.OpenCalendars();
  return QApplication::exec();
}
