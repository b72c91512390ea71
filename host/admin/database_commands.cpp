#include "host/admin/database_commands.h"

#include <CLI/CLI.hpp>
#include <memory>

#include "host/admin/check_command.h"
#include "host/admin/command_set.h"
#include "host/admin/copy_command.h"
#include "host/admin/init_command.h"
#include "host/admin/number_argument.h"
#include "host/admin/seal_command.h"
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

The entries of the history are chained: each has a hash over itself and the one
before it. The chains must be whole, and what the entries did, done again, must
give what the tables hold. What was changed behind the history is named, with the
entry that it does not fit, who called that and when. Whoever may change every
table could make the chains anew, or take the newest entries away; --seal, with
what "seal" printed before, proves that nothing up to then was changed.

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

constexpr const char* kSealManual =
    R"(Prints a seal of the history: the number of its newest entry, and letters that
stand for the newest entry of every chain and for what was there before the first.
Write it down or keep it elsewhere. "check URL --seal SEAL" proves at any later
time, however many entries there are by then, that no entry up to that number, and
nothing before it, was changed or removed. A copy of the database has the same
seal.

On a server it waits for changing calls that are at work, at most 5 seconds, and
the user must be one who could create the database. What the seal is of is told on
standard error.)";

constexpr const char* kStatusManual =
    R"(Prints two tables: the version of the schema, the engine and its version, and how many currencies, rules
(all of them, and those removed), calendars, days and entries of the history there are; and for each year the
number of its calendars. On a server a third one tells how many of its connections operators, readers, others and
all have open, how many they can have, and which logins have no limit of their own. Warnings follow: calendars of this year, the next and, from September on, the one after
it that a currency with a rule book or any calendar lacks, and calendars in which no weekend is closed ("review"
tells more). A database of an older schema has an empty cell for what it does not know. On a server the user must
be one who could create the database.

FORMATS
  table  columns, for people; each warning is a line
  json   {"results": [{"fields": [...], "rows": [[...]]}]} on one line; warnings are a third table with a row
         for each calendar: Year, Ccy, and "no calendar" or "no weekends"; that of connections is the fourth
  csv    as RFC 4180, an empty line between the tables)";

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
  CLI::App& command = commands.Add(
      "init", "Create a database", kInitManual, Changing([init](const CommandSurroundings& surroundings) {
        return init->Run(surroundings.engines, surroundings.out, surroundings.errors);
      }));
  command.add_option("URL", init->url, "The database to create")->required();
  CLI::Option* const empty =
      command.add_flag("--empty", init->content.is_empty, "Without rule books, rules and calendars");
  AddNumber(command, "--year", "The first year of the calendars; this year without it",
            {almanac::kFirstYear, kLastDeliverableYear},
            [init](int year) { init->content.first_year = year; })
      .option_text("YEAR")
      ->excludes(empty);
}

void AddCheck(CommandSet& commands) {
  const auto check = std::make_shared<CheckCommand>();
  CLI::App& command = commands.Add("check", "Look for faults in a database", kCheckManual,
                                   [check](const CommandSurroundings& surroundings) {
                                     return check->Run(surroundings.engines, surroundings.out);
                                   });
  command.add_option("URL", check->url, "The database to check")->required();
  command.add_option("--seal", check->seal, "What \"seal\" printed before: nothing up to then was changed")
      ->option_text("SEAL");
}

void AddCopy(CommandSet& commands) {
  const auto copy = std::make_shared<CopyCommand>();
  CLI::App& command =
      commands.Add("copy", "Copy a database to another one, of any engine", kCopyManual,
                   Changing([copy](const CommandSurroundings& surroundings) {
                     return copy->Run(surroundings.engines, surroundings.out, surroundings.errors);
                   }));
  TakeDatabase(*command.add_option("FROM", copy->from, "The URL of the database to copy")->required());
  TakeDatabase(
      *command.add_option("TO", copy->to, "The URL of the database that it is copied to")->required());
}

void AddSeal(CommandSet& commands) {
  const auto seal = std::make_shared<SealCommand>();
  CLI::App& command =
      commands.Add("seal", "Print what proves later that the history was not changed", kSealManual,
                   [seal](const CommandSurroundings& surroundings) {
                     return seal->Run(surroundings.engines, surroundings.out, surroundings.errors);
                   });
  command.add_option("URL", seal->url, "The database to seal")->required();
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
  CLI::App& command =
      commands.Add("upgrade", "Bring an older database to this version", kUpgradeManual,
                   Changing([upgrade](const CommandSurroundings& surroundings) {
                     return upgrade->Run(surroundings.engines, surroundings.out, surroundings.errors);
                   }));
  command.add_option("URL", upgrade->url, "The database to upgrade")->required();
}

}  // namespace

void AddDatabaseCommands(CommandSet& commands) {
  AddInit(commands);
  AddCheck(commands);
  AddCopy(commands);
  AddSeal(commands);
  AddStatus(commands);
  AddUpgrade(commands);
}

}  // namespace ferrowind::host
