#include "host/admin/history_commands.h"

#include <CLI/CLI.hpp>
#include <memory>

#include "host/admin/as_of_command.h"
#include "host/admin/command_set.h"
#include "host/admin/history_command.h"
#include "host/admin/undo_command.h"

namespace ferrowind::host {
namespace {

constexpr const char* kHistoryManual =
    R"(Lists the calls that changed something, the oldest first: when, by whom, the
procedure and its parameters, the calendar that it was for, if it was for one,
what it returned, how many rows it changed, and what that was in words. "By
whom" is the login on a server, and the operating system's user in a file.

--calendar takes the currency's code or its number.

--since takes a date YYYY-MM-DD or a date and time YYYY-MM-DDTHH:MM:SS. All
times are UTC.

FORMATS
  table  columns, for people: parameters as NAME=VALUE, without those that had
         no value; texts over 60 columns are cut
  json   {"results": [{"fields": [...], "rows": [[...]]}]} on one line, the
         parameters as the text of a JSON object
  csv    as RFC 4180, the parameters as the text of a JSON object)";

constexpr const char* kUndoManual =
    R"(Puts back what the call of that entry of the history changed: days with their
comments, rules, calendars, rule books, currencies. That is a call like any
other, with an entry of its own, which can be undone itself. A rule that the
call added goes again, unless something uses it by now; so does a calendar that
it created. On a terminal it says what it would undo and asks; --yes does not
ask, and neither does a script that has no terminal.

Nothing is changed and the status is 1 when a later call changed the same, or
when the entry is undone already, or older than the upgrade that brought undoing:
the history does not keep then what was there before.)";

constexpr const char* kAsOfManual =
    R"(Prints the days of a calendar as they were at a moment of the past: after the
last call that had ended by then. MOMENT is a date YYYY-MM-DD, its midnight, or
a date and time YYYY-MM-DDTHH:MM:SS. All times are UTC.

FORMATS
  table  columns, for people: texts over 60 columns are cut
  json   {"results": [{"fields": [...], "rows": [[...]]}]} on one line
  csv    as RFC 4180)";

void AddHistory(CommandSet& commands) {
  const auto history = std::make_shared<HistoryCommand>();
  CLI::App& command = commands.Add("history", "List who changed what, and when", kHistoryManual,
                                   [history](const CommandSurroundings& surroundings) {
                                     return history->Run(surroundings.engines, surroundings.out);
                                   });
  command.add_option("URL", history->url, "The database to look into")->required();
  command.add_option("--since", history->since, "Entries from then on")->option_text("DATE-OR-TIME");
  command.add_option("--calendar", history->calendar, "Changes of this calendar alone")
      ->option_text("USD/2026");
  AddFormat(command, history->format);
}

void AddUndo(CommandSet& commands) {
  const auto undo = std::make_shared<UndoCommand>();
  CLI::App& command = commands.Add("undo", "Put back what a call changed", kUndoManual,
                                   Changing([undo](const CommandSurroundings& surroundings) {
                                     return undo->Run(surroundings.engines, AskOnTerminal, surroundings.out,
                                                      surroundings.errors);
                                   }));
  command.add_option("URL", undo->url, "The database")->required();
  command.add_option("ENTRY", undo->entry, "The EntryID that \"history\" prints")->required();
  command.add_flag("--yes", undo->is_confirmed, "Do not ask");
}

void AddAsOf(CommandSet& commands) {
  const auto as_of = std::make_shared<AsOfCommand>();
  CLI::App& command = commands.Add("as-of", "Print a calendar as it was at a moment", kAsOfManual,
                                   [as_of](const CommandSurroundings& surroundings) {
                                     return as_of->Run(surroundings.engines, surroundings.out);
                                   });
  command.add_option("URL", as_of->url, "The database to look into")->required();
  command.add_option("CCY", as_of->currency, "The currency's code, such as EUR")->required();
  command.add_option("YEAR", as_of->year, "The calendar's year")->required();
  command.add_option("MOMENT", as_of->moment, "The moment, in UTC")->required();
  AddFormat(command, as_of->format);
}

}  // namespace

void AddHistoryCommands(CommandSet& commands) {
  AddHistory(commands);
  AddUndo(commands);
  AddAsOf(commands);
}

}  // namespace ferrowind::host
