#pragma once

#include <QString>
#include <QStringList>
#include <string>
#include <vector>

#include "ferrowind/adapters/qt/look/theme.h"

namespace ferrowind::host {

/// What the command line of the desktop program asks for.
struct DesktopOptions {
  /// The connection string; empty for the user's own database.
  std::string database;
  /// The file that the trace is appended to; empty for no trace.
  QString trace_file;
  /// Whether the Calendars window opens at once.
  bool open = false;
  qt::Theme theme = qt::Theme::kSystem;
};

/// Prints the help or the version and exits with 0 when the arguments behind the program's name ask for that,
/// which needs no display; else does nothing.
void ShowTextAskedFor(const std::vector<std::string>& arguments);

/// Reads the arguments of the running application. Prints the help or the version and exits with 0 when they
/// ask for it; prints what is wrong and exits with 1 when they cannot be understood.
[[nodiscard]] DesktopOptions ReadOptions(const QStringList& arguments);

}  // namespace ferrowind::host
