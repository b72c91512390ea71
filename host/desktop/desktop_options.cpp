#include "host/desktop/desktop_options.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTextStream>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <string_view>

namespace ferrowind::host {
namespace {

[[noreturn]] void Refuse(const QString& problem) {
  QTextStream(stderr) << "ferrowind: " << problem << "\nTry: ferrowind --help\n";
  std::exit(EXIT_FAILURE);
}

qt::Theme ThemeNamed(const QString& name) {
  if (name == QLatin1String("system")) return qt::Theme::kSystem;
  if (name == QLatin1String("light")) return qt::Theme::kLight;
  if (name == QLatin1String("dark")) return qt::Theme::kDark;
  Refuse(QStringLiteral("there is no theme \"%1\": choose system, light or dark").arg(name));
}

}  // namespace

void ShowTextAskedFor(const std::vector<std::string>& arguments) {
  constexpr std::array<std::string_view, 5> kOptions = {"-h", "--help", "--help-all", "-v", "--version"};
  const auto asked = std::find_first_of(arguments.begin(), arguments.end(), kOptions.begin(), kOptions.end());
  if (asked == arguments.end()) return;
  std::array<char, 10> name{"ferrowind"};
  std::array<char*, 2> only_name{name.data(), nullptr};
  int count = 1;
  const QCoreApplication without_display(count, only_name.data());
  // The others may be for the toolkit of an application that has a display.
  (void)ReadOptions({QString::fromUtf8(name.data()), QString::fromStdString(*asked)});
}

DesktopOptions ReadOptions(const QStringList& arguments) {
  QCommandLineParser parser;
  parser.setApplicationDescription(
      QStringLiteral("Keeps the business-day calendars of a foreign-exchange back office."));
  parser.addHelpOption();
  parser.addVersionOption();
  const QCommandLineOption database(
      QStringLiteral("database"),
      QStringLiteral("Work on the database URL, for example sqlite:/path/to/file or "
                     "postgresql://user@host/name. Without it, on the user's own, which "
                     "is created with currencies, rules and calendars at the first start."),
      QStringLiteral("URL"));
  const QCommandLineOption trace(QStringLiteral("trace"),
                                 QStringLiteral("Append a trace of every procedure call to FILE."),
                                 QStringLiteral("FILE"));
  const QCommandLineOption open(QStringLiteral("open"), QStringLiteral("Open the Calendars window at once."));
  const QCommandLineOption theme(QStringLiteral("theme"),
                                 QStringLiteral("The look of the windows: system, light or dark."),
                                 QStringLiteral("NAME"), QStringLiteral("system"));
  parser.addOptions({database, trace, open, theme});
  parser.process(arguments);
  if (!parser.positionalArguments().isEmpty()) {
    Refuse(QStringLiteral("\"%1\" was not expected").arg(parser.positionalArguments().first()));
  }
  // Left out, they mean something else than what was to be put there.
  for (const QCommandLineOption& option : {database, trace}) {
    if (parser.isSet(option) && parser.value(option).isEmpty()) {
      Refuse(QStringLiteral("--%1 is empty").arg(option.names().first()));
    }
  }
  return {.database = parser.value(database).toStdString(),
          .trace_file = parser.value(trace),
          .open = parser.isSet(open),
          .theme = ThemeNamed(parser.value(theme))};
}

}  // namespace ferrowind::host
