#include "host/admin/call_command_line.h"

#include <CLI/CLI.hpp>
#include <memory>

#include "host/admin/call_command.h"
#include "host/admin/command_set.h"

namespace ferrowind::host {
namespace {

constexpr const char* kCallManual =
    R"(Each NAME=VALUE sets the parameter NAME (with or without "@", in any letter
case) to what stands behind the first "=", read by the type that the procedure
declares: text as it is, a whole number, or a date YYYY-MM-DD. "NAME=" is an
empty text; NAME alone is no value (NULL), as is a parameter that is not named.
A name that the procedure does not have, or a value that does not fit, is an
error that names it, and nothing is called.

FORMATS
  table  the return value and each record set in columns, for people: texts
         over 60 columns are cut, control characters are shown as escapes
  json   {"return": 0, "results": [{"fields": [...], "rows": [[...]]}]} on one
         line, dates as "YYYY-MM-DD", no value as null
  csv    as RFC 4180, an empty line between the tables: one with the field
         "return", then one for each record set. No value is an empty field,
         an empty text is ""; in a table of a single field both are "")";

}  // namespace

void AddCallCommand(CommandSet& commands) {
  const auto call = std::make_shared<CallCommand>();
  CLI::App& command =
      commands.Add("call", "Call a procedure and print what it gives", kCallManual,
                   [call](const CommandSurroundings& surroundings) {
                     return call->Run(surroundings.engines, surroundings.out, surroundings.errors);
                   });
  command.add_option("URL", call->url, "The database to call it in")->required();
  command.add_option("PROCEDURE", call->procedure, "The name of the procedure")->required();
  command.add_option("ARGUMENT", call->arguments, "Its parameters, each NAME=VALUE")
      ->option_text("NAME=VALUE");
  AddFormat(command, call->format);
}

}  // namespace ferrowind::host
