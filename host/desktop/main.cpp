#include <QApplication>
#include <QMessageBox>

#include "ferrowind/adapters/qt/look/program_icon.h"
#include "ferrowind/adapters/qt/look/theme.h"
#include "ferrowind/adapters/services/password_free.h"
#include "ferrowind/platform/values/failure.h"

#include "host/delivery/database_version.h"
#include "host/desktop/back_office_window.h"
#include "host/desktop/database_trouble.h"
#include "host/desktop/desktop_options.h"
#include "host/desktop/desktop_surroundings.h"
#include "host/desktop/trouble_footer.h"
#include "host/desktop/user_database.h"
#include "host/session/private_arguments.h"

namespace {

using ferrowind::host::DatabaseTrouble;
using ferrowind::host::DesktopOptions;
using ferrowind::host::DesktopSurroundings;

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

}  // namespace

int main(int argc, char** argv) {
  ferrowind::host::PrivateArguments arguments(argc, argv);
  QApplication application(arguments.Count(), arguments.Values());
  QApplication::setOrganizationName(QStringLiteral("Tessaro"));
  QApplication::setApplicationName(QStringLiteral("ferrowind"));
  QApplication::setApplicationVersion(QStringLiteral(FERROWIND_VERSION));
  const DesktopOptions options = ferrowind::host::ReadOptions(QApplication::arguments());
  ferrowind::qt::ApplyTheme(application, options.theme);
  QApplication::setWindowIcon(ferrowind::qt::ProgramIcon());

  DatabaseTrouble trouble;
  DesktopSurroundings surroundings(trouble);
  if (!options.trace_file.isEmpty()) TellWhenFailing([&] { surroundings.TraceTo(options.trace_file); });
  std::string database = options.database;
  if (database.empty()) {
    TellWhenFailing([&] { database = ferrowind::host::UserDatabase(surroundings.Engines()); });
    TellWhenFailing([&] { ferrowind::host::UpgradeOwnDatabase(database); });
  } else {
    TellWhenFailing([&] {
      (void)surroundings.Engines().EngineFor(database);
      ferrowind::host::RequireThisVersion(database);
    });
  }
  surroundings.UseDatabase(database);

  ferrowind::host::BackOfficeWindow window(surroundings.Get(),
                                           QString::fromStdString(ferrowind::PasswordFree(database)));
  ferrowind::host::TroubleFooter footer(window);
  QObject::connect(&trouble, &DatabaseTrouble::Changed, &window,
                   &ferrowind::host::BackOfficeWindow::TellTrouble);
  QObject::connect(&trouble, &DatabaseTrouble::Changed, &footer, &ferrowind::host::TroubleFooter::Tell);
  window.show();
  if (options.open) window.OpenCalendars();
  return QApplication::exec();
}
