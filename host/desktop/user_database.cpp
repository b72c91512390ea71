#include "host/desktop/user_database.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include "ferrowind/platform/values/failure.h"

#include "host/delivery/first_database.h"

namespace ferrowind::host {
namespace {

constexpr QFileDevice::Permissions kOwnerOnly =
    QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner;

void MakeFolder(const QString& folder) {
  if (QFileInfo(folder).isDir()) return;
  if (!QDir().mkpath(folder)) {
    throw platform::Failure(
        platform::failure_number::kInvalidArgument,
        "The folder " + folder.toStdString() + " for the calendar database cannot be made");
  }
  QFile::setPermissions(folder, kOwnerOnly);
}

}  // namespace

std::string UserDatabase(const platform::EngineRegistry& engines, const platform::Clock& clock) {
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
  const QString path = folder + QStringLiteral("/calendars.sqlite");
  const std::string url = "sqlite:" + path.toStdString();
  // An empty file is what a copy that was cut off leaves, and no database.
  if (QFileInfo(path).size() == 0) {
    MakeFolder(folder);
    (void)CreateFirstDatabase(engines, url, clock);
  }
  return url;
}

}  // namespace ferrowind::host
