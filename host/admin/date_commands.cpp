#include "host/admin/date_commands.h"

#include <CLI/CLI.hpp>
#include <iostream>
#include <map>
#include <memory>
#include <vector>

#include "host/admin/command_set.h"
#include "host/admin/date_command.h"

namespace ferrowind::host {
namespace {

constexpr const char* kManual =
    R"(Says what the calendars of the database make of a day. Several currencies, as
EUR,USD, are asked together: a day is open when it is open for all of them.

  is         whether the day is open, closed or not prepared
  next       the first business day after the day
  previous   the last business day before it
  adjust     where a convention moves the day: Following, ModifiedFollowing,
             ModifiedFollowingBimonthly, Preceding, ModifiedPreceding, Nearest
             or Unadjusted
  add        the DAYS-th business day after the day, before it when DAYS is
             negative; with 0 the day itself
  between    how many business days lie behind FROM, up to and with TO
  month-end  the last business day of the month that the day is in
  spot       the spot date of a trade of that day, in a pair such as EURUSD
  value      the day on which a trade of a tenor settles: ON, TN, SPOT, SN, SW,
             10D, 2W, 3M, 1Y, IMM1 to IMM4
  serve      answers such questions line by line, without the URL, from standard
             input on standard output; a line that cannot be answered gets "error:"
             and why. Changes of the database are seen within seconds

The answer stands alone on the last line. --why tells before it which closed days
were passed over, what closes them and for whom: "2026-04-03 Good Friday: EUR, USD".
--format json gives an object on one line:
{"question": "next EUR 2026-12-25", "answer": "2026-12-28"}, with --why a list
"passed" of objects {"date", "closed", "names"}: the currencies for which the day
is closed, and by currency what closes it.

EXIT STATUS
  0  answered; of "is": the day is open
  1  of "is": the day is closed
  2  the question could not be answered, the reason is on standard error
  3  the answer depends on a day that nobody has prepared)";

constexpr const char* kCodes = "A currency's code such as EUR, or several as EUR,USD";
constexpr const char* kDay = "The day, YYYY-MM-DD";
constexpr const char* kPair = "The currency pair, such as EURUSD or EUR/USD";
constexpr const char* kTradeDay = "The trade date, YYYY-MM-DD";

const std::map<std::string, AnswerFormat> kFormats = {{"text", AnswerFormat::kText},
                                                      {"json", AnswerFormat::kJson}};

/// A part of a question: its name, and what it is.
struct Part {
  const char* name;
  const char* description;
};

void AddOptions(CLI::App& command, DateAnswering& answering, AnswerFormat& format) {
  command.add_flag("--why", answering.tells_why,
                   "Tell the closed days that were passed over, and what closes them");
  command
      .add_option_function<std::string>(
          "--format", [&format](const std::string& name) { format = kFormats.at(name); },
          "text (the default) or json")
      ->check(CLI::IsMember(kFormats))
      ->option_text("FORMAT");
}

void AddStaysOption(CLI::App& command, DateAnswering& answering) {
  command.add_flag_callback(
      "--trade-date-stays",
      [&answering] { answering.closed_trade_date = business_days::ClosedTradeDate::kStays; },
      "Count from a closed trade date as it is");
}

CLI::App& AddQuestion(CommandSet& commands, CLI::App& group, const char* name, const char* description,
                      const std::vector<Part>& parts) {
  const auto date = std::make_shared<DateCommand>();
  CLI::App& command =
      commands.AddTo(group, name, description, [date](const CommandSurroundings& surroundings) {
        return date->Run(surroundings.engines, surroundings.out, surroundings.errors);
      });
  command.add_option("URL", date->url, "The database to look into")->required();
  // Options refer to the words, which must not move.
  date->words.resize(parts.size() + 1);
  date->words.front() = name;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    command.add_option(parts[i].name, date->words[i + 1], parts[i].description)->required();
  }
  AddOptions(command, date->answering, date->format);
  if (parts.front().description == kPair) AddStaysOption(command, date->answering);
  return command;
}

void AddServe(CommandSet& commands, CLI::App& group) {
  const auto serve = std::make_shared<DateServeCommand>();
  CLI::App& command = commands.AddTo(
      group, "serve", "Answer questions line by line", [serve](const CommandSurroundings& surroundings) {
        return serve->Run(surroundings.engines, std::cin, surroundings.out, surroundings.errors);
      });
  command.add_option("URL", serve->url, "The database to look into")->required();
  AddOptions(command, serve->answering, serve->format);
  AddStaysOption(command, serve->answering);
}

}  // namespace

void AddDateCommands(CommandSet& commands) {
  CLI::App& group = commands.AddGroup("date", "Ask for business days and value dates", kManual);
  const Part codes{"CCY", kCodes};
  const Part day{"DATE", kDay};
  AddQuestion(commands, group, "is", "Whether a day is a business day", {codes, day});
  AddQuestion(commands, group, "next", "The first business day after a day", {codes, day});
  AddQuestion(commands, group, "previous", "The last business day before a day", {codes, day});
  AddQuestion(commands, group, "adjust", "Where a convention moves a day",
              {codes, day, {"CONVENTION", "Such as ModifiedFollowing or MF"}});
  AddQuestion(commands, group, "add", "Count business days on or back",
              {codes, day, {"DAYS", "How many; negative ones go back"}});
  AddQuestion(commands, group, "between", "Count the business days between two days",
              {codes, {"FROM", kDay}, {"TO", kDay}});
  AddQuestion(commands, group, "month-end", "The last business day of a month", {codes, day});
  AddQuestion(commands, group, "spot", "The spot date of a currency pair",
              {{"PAIR", kPair}, {"DATE", kTradeDay}});
  AddQuestion(commands, group, "value", "The value date of a currency pair",
              {{"PAIR", kPair}, {"DATE", kTradeDay}, {"TENOR", "Such as ON, SPOT, 1W, 3M or IMM1"}});
  AddServe(commands, group);
}

}  // namespace ferrowind::host
