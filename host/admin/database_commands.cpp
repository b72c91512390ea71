#include "host/admin/database_commands.h"

#include <CLI/CLI.hpp>
#include <memory>

#include "host/admin/check_command.h"
#include "host/admin/command_set.h"
#include "host/admin/copy_command.h"
#include "host/admin/init_command.h"
#include "host/admin/status_command.h"
#include "host/admin/upgrade_command.h"

namespace ferrowind::host {
namespace {

constexpr const char* kInitManual =
    R"(The database is created whole or not at all: it is built in a file beside PATH
and gets its name when it is finished. What exists under that name stays as it
is, and the command ends with status 1. Only the owner may read and write the
file. On a server the database of that name must exist and be empty, and the
user must own it and be allowed to create roles; operators' logins are then made
members of the role ferrowind_operator.

It holds the currencies, the holiday types and the built-in rule, the rule books
of 26 currencies, and their calendars of this year and the next as the books
plan them, weekends and bank holidays. --year makes those of another year and
the one after it; the books tell of 2015 and later years. --empty leaves out
books, rules and calendars.)";

constexpr const char* kCheckManual =
    R"(Nothing is changed. The schema must be of this program's version, the catalogue
of procedures complete, every calendar must have all its days, and the rule of
every day must exist. Each fault is a line on standard output, and the status
is then 1.

A database in order may still lack a calendar of this year, the next or, from
September on, the one after it, or have one in which no weekend is closed. Each
such year is a line "Warning: ...", which
does not change the status: "review" tells more, and its status does.)";

constexpr const char* kCopyManual =
    R"(Everything goes along: currencies, holiday types and rules (removed ones too), the setting, calendars,
days and the history. FROM is read as it is at one moment, and others may go on working with it. What was
written is compared with it, and only then do others see it, all at once: a copy that fails, differs or is
stopped leaves TO as it was.

TO must be empty: a file that does not exist, a database on a server that has nothing in it, or a calendar
database that holds what "init --empty" delivers and nothing else, not even an entry in its history. Roles and
rights of a server are not copied; TO has its own. Both must be of this program's schema version ("upgrade"
brings an older one there). On a server the user must be one who could create the database.

How far it is stands on standard error while that is a terminal.)";

constexpr const char* kStatusManual =
    R"(Prints two tables: the version of the schema, the engine and its version, and how many currencies, rules
(all of them, and those removed), calendars, days and entries of the history there are; and for each year the
number of its calendars. Warnings follow: calendars of this year, the next and, from September on, the one after
it that a currency with a rule book or any calendar lacks, and calendars in which no weekend is closed ("review"
tells more). A database of an older schema has an empty cell for what it does not know. On a server the user must
be one who could create the database.

FORMATS
  table  columns, for people; each warning is a line
  json   {"results": [{"fields": [...], "rows": [[...]]}]} on one line; warnings are a third table with a row
         for each calendar: Year, Ccy, and "no calendar" or "no weekends"
  csv    as RFC 4180, an empty line between the three tables)";

constexpr const char* kUpgradeManual =
    R"(Brings a database that an older version of this program made to this program's
version: schema, procedures and, on a server, rights. Calendars and rules stay
as they are. It happens in one transaction: an upgrade that fails or is stopped
leaves the database as it was. A database of this version is left alone, and a
newer one is refused. Back up the database first all the same, and upgrade when
no operator is at work. On a server the user must be one who could create the
database.

Since version 4 a rule book says since when it holds. Those that are as delivered
get their year, as changes that the history tells; which are not is printed.)";

void AddInit(CommandSet& commands) {
  const auto init = std::make_shared<InitCommand>();
  CLI::App& command =
      commands.Add("init", "Create a database", kInitManual, [init](const CommandSurroundings& surroundings) {
        return init->Run(surroundings.engines, surroundings.out, surroundings.errors);
      });
  command.add_option("URL", init->url, "The database to create")->required();
  CLI::Option* const empty =
      command.add_flag("--empty", init->content.is_empty, "Without rule books, rules and calendars");
  command
      .add_option("--year", init->content.first_year, "The first year of the calendars; this year without it")
      ->option_text("YEAR")
      ->check(CLI::Range(almanac::kFirstYear, kLastDeliverableYear))
      ->excludes(empty);
}

void AddCheck(CommandSet& commands) {
  const auto check = std::make_shared<CheckCommand>();
  CLI::App& command = commands.Add("check", "Look for faults in a database", kCheckManual,
                                   [check](const CommandSurroundings& surroundings) {
                                     return check->Run(surroundings.engines, surroundings.out);
                                   });
  command.add_option("URL", check->url, "The database to check")->required();
}

void AddCopy(CommandSet& commands) {
  const auto copy = std::make_shared<CopyCommand>();
  CLI::App& command =
      commands.Add("copy", "Copy a database to another one, of any engine", kCopyManual,
                   [copy](const CommandSurroundings& surroundings) {
                     return copy->Run(surroundings.engines, surroundings.out, surroundings.errors);
                   });
  command.add_option("FROM", copy->from, "The URL of the database to copy")->required();
  command.add_option("TO", copy->to, "The URL of the database that it is copied to")->required();
}

void AddStatus(CommandSet& commands) {
  const auto status = std::make_shared<StatusCommand>();
  CLI::App& command = commands.Add("status", "Tell what a database is and holds", kStatusManual,
                                   [status](const CommandSurroundings& surroundings) {
                                     return status->Run(surroundings.engines, surroundings.out);
                                   });
  command.add_option("URL", status->url, "The database to look at")->required();
  AddFormat(command, status->format);
}

void AddUpgrade(CommandSet& commands) {
  const auto upgrade = std::make_shared<UpgradeCommand>();
  CLI::App& command = commands.Add("upgrade", "Bring an older database to this version", kUpgradeManual,
                                   [upgrade](const CommandSurroundings& surroundings) {
                                     return upgrade->Run(surroundings.engines, surroundings.out);
                                   });
  command.add_option("URL", upgrade->url, "The database to upgrade")->required();
}

}  // namespace

void AddDatabaseCommands(CommandSet& commands) {
  AddInit(commands);
  AddCheck(commands);
  AddCopy(commands);
  AddStatus(commands);
  AddUpgrade(commands);
}

}  // namespace ferrowind::host
