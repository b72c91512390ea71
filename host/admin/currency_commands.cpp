#include "host/admin/currency_commands.h"

#include <CLI/CLI.hpp>
#include <memory>

#include "host/admin/command_set.h"
#include "host/admin/currency_command.h"
#include "host/admin/number_argument.h"

namespace ferrowind::host {
namespace {

constexpr const char* kManual =
    R"(list prints number, code, kind, name and last day of every currency that the
database knows. The kind is what holds today: "money", "past" for what was money,
and "other" for metals, funds and units of account.

add needs the three letters and the number that ISO 4217 gives. rename changes a
name, or with --code the letters; the number stays, and with it the calendars.
retire says until which day, YYYY-MM-DD, a currency is money. There can be no
calendar of a later year then; one that exists is in the way. Once that day is
past, a currency without calendars and rule book leaves the lists of the windows;
one that was retired before its last day does when it is retired again. restore
takes the last day away: the currency is money again.

Every change has an entry in the history, and "undo" takes it back. On a server
only an administrator may change currencies.)";

constexpr NumberRange kNumbers{1, 999};

constexpr const char* kUrl = "The database";
constexpr const char* kCode = "The currency's code, such as EUR";
constexpr const char* kKnown = "The currency's code, such as EUR, or its number";

void AddList(CommandSet& commands, CLI::App& group) {
  const auto list = std::make_shared<CurrencyListCommand>();
  CLI::App& command =
      commands.AddTo(group, "list", "List the currencies", [list](const CommandSurroundings& surroundings) {
        return list->Run(surroundings.engines, surroundings.out);
      });
  command.add_option("URL", list->url, kUrl)->required();
  AddFormat(command, list->format);
}

void AddAdd(CommandSet& commands, CLI::App& group) {
  const auto add = std::make_shared<CurrencyAddCommand>();
  CLI::App& command =
      commands.AddTo(group, "add", "Add a currency", Changing([add](const CommandSurroundings& surroundings) {
                       return add->Run(surroundings.engines, surroundings.out);
                     }));
  command.add_option("URL", add->url, kUrl)->required();
  command.add_option("CCY", add->code, kCode)->required();
  AddNumber(command, "NUMBER", "Its number in ISO 4217, 1 to 999", kNumbers, [add](int number) {
    add->number = number;
  }).required();
  command.add_option("NAME", add->name, "Its name")->required();
  command.add_flag("--no-money", add->is_no_money, "A metal, a fund or a unit of account, without calendars");
}

void AddRename(CommandSet& commands, CLI::App& group) {
  const auto rename = std::make_shared<CurrencyRenameCommand>();
  CLI::App& command = commands.AddTo(group, "rename", "Change a currency's name or code",
                                     Changing([rename](const CommandSurroundings& surroundings) {
                                       return rename->Run(surroundings.engines, surroundings.out);
                                     }));
  command.add_option("URL", rename->url, kUrl)->required();
  command.add_option("CCY", rename->code, kKnown)->required();
  command.add_option("NAME", rename->new_name, "The new name");
  command.add_option("--code", rename->new_code, "The new code")->option_text("CCY");
}

void AddRetire(CommandSet& commands, CLI::App& group) {
  const auto retire = std::make_shared<CurrencyRetireCommand>();
  CLI::App& command = commands.AddTo(group, "retire", "Say until when a currency is money",
                                     Changing([retire](const CommandSurroundings& surroundings) {
                                       return retire->Run(surroundings.engines, surroundings.out);
                                     }));
  command.add_option("URL", retire->url, kUrl)->required();
  command.add_option("CCY", retire->code, kKnown)->required();
  command.add_option("LAST-DAY", retire->last_day, "The last day on which it is money, YYYY-MM-DD")
      ->required();
}

void AddRestore(CommandSet& commands, CLI::App& group) {
  const auto restore = std::make_shared<CurrencyRestoreCommand>();
  CLI::App& command = commands.AddTo(group, "restore", "Make a retired currency money again",
                                     Changing([restore](const CommandSurroundings& surroundings) {
                                       return restore->Run(surroundings.engines, surroundings.out);
                                     }));
  command.add_option("URL", restore->url, kUrl)->required();
  command.add_option("CCY", restore->code, kKnown)->required();
}

}  // namespace

void AddCurrencyCommands(CommandSet& commands) {
  CLI::App& group =
      commands.AddGroup("currency", "List, add, rename, retire and restore currencies", kManual);
  AddList(commands, group);
  AddAdd(commands, group);
  AddRename(commands, group);
  AddRetire(commands, group);
  AddRestore(commands, group);
}

}  // namespace ferrowind::host
