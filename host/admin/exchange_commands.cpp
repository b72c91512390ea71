#include "host/admin/exchange_commands.h"

#include <CLI/CLI.hpp>
#include <iostream>
#include <memory>
#include <string>

#include "host/admin/command_set.h"
#include "host/admin/export_command.h"
#include "host/admin/import_command.h"
#include "host/admin/reconcile_command.h"

namespace ferrowind::host {
namespace {

constexpr const char* kExportManual =
    R"(Writes the holidays of calendars as a list for other programs: CCY is a code, or
several with commas between them, YEARS a year, or several as 2026-2028. Weekends
and working days by exception are left out; --all has them, too. A calendar that
does not exist is an error, and nothing is written: its days are not known.

FORMATS
  ics   iCalendar, for calendar programs: one all-day event a day. Each keeps its
        UID, so a program that has imported an earlier file changes its events;
        SEQUENCE and the moments are those of the newest entry of the history. An
        event of a day that is no holiday any more must be removed there by hand
  csv   RFC 4180 with the columns date, weekday, name, type, currency
  json  [{"date": "2027-01-01", "name": "New Year's Day", "type": "holiday",
        "currency": "EUR"}], a day a line
  txt   a day a line, date and name; closed days of one currency only
"import" reads all of them. An unchanged database gives the same bytes again.)";

constexpr const char* kListForms =
    R"(
THE LIST
  FILE is "-" for standard input. Its format is told by how it begins and by its
  name; --list-format says it. UTF-8, or UTF-16 with a byte order mark; 4 MB at most.
  Dates are YYYY-MM-DD, or have an English month by name: 1 January 2027, January
  1, 2027, 01-Jan-2027, with the right weekday before it or none. Dates of numbers
  alone, such as 01/02/2027, are refused, as nobody knows which day is meant.
    txt   a date and perhaps a name a line; lines with "#" in front are comments
    csv   the columns date, and perhaps name, type, currency, by their names in
          the first line; without such a line the date and the name
    json  a list of dates, or of objects with the members date, name, type,
          currency; or an object with that list as its member "days"
    ics   all-day events, and those from midnight to midnight; others are half
          days. Events that repeat are read for the years of --year, or to their
          end; cancelled events are left out, and told
  A type is holiday (also bank, public or national holiday, closed), weekend,
  working day or half day (half-day, early close); a name with "half day" or
  "early close" in it is a half day, too. Days of other currencies are left out.
  Every line that cannot be read is named, and then nothing is done.

  A list is of one year. With several years in it --year must say which are whole,
  as 2027 or 2026-2028; the days of others are left out, and counted.
  Weekends that the list leaves out stay as they are, with holidays that fall on
  them. A list that names 40 days of one weekday in a year names its weekends,
  which then count as all days do.)";

constexpr const char* kImportManual =
    R"(Makes a calendar as a published list says. It shows what will change and asks
before it does, as "apply" does; --yes changes without asking. Days that the list
names are closed, all others are working days. Each year changes in one call,
whole or not at all, and has one entry in the history, which "undo" takes back.

Closed days that the list closes keep their names, unless --names takes those of
the list. A new holiday gets the name that the currency's rule book has for that
day, else the list's, and "Bank holiday" without one. A calendar that does not
exist gets the weekends of the book; without a book the list must name them.
Half days stay as they are, open or closed, and each is told. A working day of
the list becomes one by exception, with its name for the reason.
)";

constexpr const char* kReconcileManual =
    R"(Compares a calendar with a published list and prints the days that are closed on
one side and open on the other. The status is 0 when there is none, else 1. Names
do not count, half days are told and not compared, and nothing is changed.
)";

constexpr const char* kCode = "The currency's code, such as EUR";

void AddList(CLI::App& command, ListSource& source) {
  command.add_option("FILE", source.file, "The list, or - for standard input")->required();
  command.add_option("--year", source.years, "Which years of the list are whole")->option_text("YEARS");
}

void AddExport(CommandSet& commands) {
  const auto list = std::make_shared<ExportCommand>();
  CLI::App& command = commands.Add("export", "Write calendars as a list for other programs", kExportManual,
                                   [list](const CommandSurroundings& surroundings) {
                                     return list->Run(surroundings.engines, surroundings.out);
                                   });
  command.add_option("URL", list->url, "The database to read")->required();
  command.add_option("CCY", list->currencies, "The currency's code, or several as EUR,USD")->required();
  command.add_option("YEARS", list->years, "A year, or several as 2026-2028")->required();
  command.add_option("--format", list->format, "ics, csv, json or txt")->required()->option_text("FORMAT");
  command.add_flag("--all", list->has_all, "Weekends and working days by exception, too");
  command
      .add_option("--output", list->file, "The file to write; standard output without it, and when it is -")
      ->option_text("FILE");
}

void AddImport(CommandSet& commands) {
  static const std::string kManual = std::string(kImportManual) + kListForms;
  const auto import = std::make_shared<ImportCommand>();
  CLI::App& command = commands.Add("import", "Make a calendar as a published list says", kManual.c_str(),
                                   Changing([import](const CommandSurroundings& surroundings) {
                                     return import->Run(surroundings.engines, AskOnTerminal, std::cin,
                                                        surroundings.out, surroundings.errors);
                                   }));
  command.add_option("URL", import->url, "The database")->required();
  command.add_option("CCY", import->currency, kCode)->required();
  AddList(command, import->source);
  command.add_option("--list-format", import->source.format, "The format of the list: ics, csv, json or txt")
      ->check(CLI::IsMember({"ics", "csv", "json", "txt"}))
      ->option_text("FORMAT");
  command.add_flag("--names", import->takes_names, "Take the names of the list for closed days, too");
  command.add_flag("--keep-exceptions", import->keeps_exceptions,
                   "Leave working days by exception as they are");
  command.add_flag("--yes", import->is_confirmed, "Do not ask");
}

void AddReconcile(CommandSet& commands) {
  static const std::string kManual = std::string(kReconcileManual) + kListForms;
  const auto reconcile = std::make_shared<ReconcileCommand>();
  CLI::App& command = commands.Add("reconcile", "Compare a calendar with a published list", kManual.c_str(),
                                   [reconcile](const CommandSurroundings& surroundings) {
                                     return reconcile->Run(surroundings.engines, std::cin, surroundings.out,
                                                           surroundings.errors);
                                   });
  command.add_option("URL", reconcile->url, "The database to look into")->required();
  command.add_option("CCY", reconcile->currency, kCode)->required();
  AddList(command, reconcile->source);
  command
      .add_option("--list-format", reconcile->source.format, "The format of the list: ics, csv, json or txt")
      ->check(CLI::IsMember({"ics", "csv", "json", "txt"}))
      ->option_text("FORMAT");
  AddFormat(command, reconcile->output);
}

}  // namespace

void AddExchangeCommands(CommandSet& commands) {
  AddExport(commands);
  AddImport(commands);
  AddReconcile(commands);
}

}  // namespace ferrowind::host
