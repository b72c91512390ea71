#include "host/admin/convention_commands.h"

#include <CLI/CLI.hpp>
#include <memory>

#include "host/admin/command_set.h"
#include "host/admin/convention_command.h"

namespace ferrowind::host {
namespace {

constexpr const char* kManual =
    R"(How the market counts the days from a trade to its spot date, where it is not two
business days. Each convention is a line:

  spot USD/CAD 1                  the pair settles 1 business day after the trade,
                                  0, 1 or 2; the order of the two does not matter
  dollar-holiday-stops MXN        a holiday of the dollar between trade and spot
                                  stops the count of pairs with this currency
  dollar-holiday-stops MXN no     it does not

list prints those in force: what comes with the program, and what the database
says in its place. set puts lines into the database, each an argument of its own;
a line that cannot be read, or names an unknown currency, is refused by its
number, and nothing is set. remove takes back what the database says of a pair or
a currency.

Every change has an entry in the history, and "undo" takes it back. On a server
only an administrator may change conventions.)";

constexpr const char* kUrl = "The database";

void AddList(CommandSet& commands, CLI::App& group) {
  const auto list = std::make_shared<ConventionListCommand>();
  CLI::App& command = commands.AddTo(group, "list", "List the conventions in force",
                                     [list](const CommandSurroundings& surroundings) {
                                       return list->Run(surroundings.engines, surroundings.out);
                                     });
  command.add_option("URL", list->url, kUrl)->required();
  AddFormat(command, list->format);
}

void AddSet(CommandSet& commands, CLI::App& group) {
  const auto set = std::make_shared<ConventionSetCommand>();
  CLI::App& command = commands.AddTo(group, "set", "Amend conventions",
                                     Changing([set](const CommandSurroundings& surroundings) {
                                       return set->Run(surroundings.engines, surroundings.out);
                                     }));
  command.add_option("URL", set->url, kUrl)->required();
  command.add_option("LINE", set->lines, "A line such as \"spot USD/CAD 1\"")->required();
}

void AddRemove(CommandSet& commands, CLI::App& group) {
  const auto remove = std::make_shared<ConventionRemoveCommand>();
  CLI::App& command = commands.AddTo(group, "remove", "Take back what the database says",
                                     Changing([remove](const CommandSurroundings& surroundings) {
                                       return remove->Run(surroundings.engines, surroundings.out);
                                     }));
  command.add_option("URL", remove->url, kUrl)->required();
  command.add_option("SUBJECT", remove->subjects, "A currency pair such as USD/CAD, or a currency")
      ->required();
}

}  // namespace

void AddConventionCommands(CommandSet& commands) {
  CLI::App& group = commands.AddGroup("conventions", "List and amend how days to spot are counted", kManual);
  AddList(commands, group);
  AddSet(commands, group);
  AddRemove(commands, group);
}

}  // namespace ferrowind::host
