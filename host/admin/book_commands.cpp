#include "host/admin/book_commands.h"

#include <CLI/CLI.hpp>
#include <iostream>
#include <memory>

#include "host/admin/book_command.h"
#include "host/admin/command_set.h"

namespace ferrowind::host {
namespace {

constexpr const char* kManual =
    R"(A rule book says what the years of a currency should be: its publisher, the
document, and a rule a line with kind, name, date expression and comment, in
columns with "|" between them. "plan", "apply" and "review" go by it.

show prints the book as a text, which set takes back from a file, or from
standard input when FILE is "-" or missing. Comments of a text are not kept. The
first line of what show prints, "# state ...", says which book it was: set refuses
a text with that line when the book was changed since, and without it replaces
whatever is stored. It prints the lines removed and added. The whole text is
checked first: each wrong line is named with its place, and nothing is stored
then. check looks at
what is stored, or with FILE at a text as if it were the currency's book; its
status is 1 when there is a fault. A name has one kind, and a celebration one
date, in the books of all currencies.

"set URL ALL --delivered" stores the books that come with the program, as in a
database that was made before there were books; with one currency its book alone.
Every change has an entry in the history, and "undo" takes it back.)";

constexpr const char* kUrl = "The database";
constexpr const char* kCode = "The currency's code, such as EUR, or its number";

void AddShow(CommandSet& commands, CLI::App& group) {
  const auto show = std::make_shared<BookShowCommand>();
  CLI::App& command = commands.AddTo(group, "show", "Print the rule book of a currency",
                                     [show](const CommandSurroundings& surroundings) {
                                       return show->Run(surroundings.engines, surroundings.out);
                                     });
  command.add_option("URL", show->url, kUrl)->required();
  command.add_option("CCY", show->currency, kCode)->required();
}

void AddSet(CommandSet& commands, CLI::App& group) {
  const auto set = std::make_shared<BookSetCommand>();
  CLI::App& command =
      commands.AddTo(group, "set", "Replace the rule book of a currency",
                     Changing([set](const CommandSurroundings& surroundings) {
                       return set->Run(surroundings.engines, std::cin, surroundings.out, surroundings.errors);
                     }));
  command.add_option("URL", set->url, kUrl)->required();
  command.add_option("CCY", set->currency, "The currency's code or number; ALL with --delivered")->required();
  command.add_option("FILE", set->file, "The text of the book");
  command.add_flag("--delivered", set->is_delivered, "The book that comes with the program");
}

void AddCheck(CommandSet& commands, CLI::App& group) {
  const auto check = std::make_shared<BookCheckCommand>();
  CLI::App& command = commands.AddTo(group, "check", "Look for faults in a rule book",
                                     [check](const CommandSurroundings& surroundings) {
                                       return check->Run(surroundings.engines, std::cin, surroundings.out);
                                     });
  command.add_option("URL", check->url, kUrl)->required();
  command.add_option("CCY", check->currency, "The currency's code or number, or ALL")->required();
  command.add_option("FILE", check->file, "A text to look at instead of the stored book");
}

}  // namespace

void AddBookCommands(CommandSet& commands) {
  CLI::App& group = commands.AddGroup("book", "Show, replace and check rule books", kManual);
  AddShow(commands, group);
  AddSet(commands, group);
  AddCheck(commands, group);
}

}  // namespace ferrowind::host
