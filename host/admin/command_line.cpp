#include "host/admin/command_line.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "host/admin/command_set.h"
#include "host/admin/command_table.h"
#include "host/admin/nearest_word.h"
#include "host/admin/text_escapes.h"

namespace ferrowind::host {
namespace {

/// The program's arguments and its commands.
class CommandLine {
 public:
  /// `failed` is what a wrong command line returns.
  explicit CommandLine(ExitStatus failed) : failed_(failed) { BuildCommandTable(app_, commands_); }

  ExitStatus Run(std::vector<std::string> arguments, const CommandSurroundings& surroundings) {
    for (const std::string& argument : arguments) {
      // The parser would take this for a list of arguments, "[]" for none at all.
      if (argument.starts_with('[')) {
        return Refuse("\"" + argument + "\" is neither a URL nor a name", surroundings.errors);
      }
    }
    AskForHelp(arguments);
    try {
      // The parser takes them from the back.
      std::reverse(arguments.begin(), arguments.end());
      app_.parse(std::move(arguments));
    } catch (const CLI::CallForHelp&) {
      if (const auto wrong = WrongCommand()) return Refuse(*wrong, surroundings.errors);
      surroundings.out << app_.help();
      return ExitStatus::kDone;
    } catch (const CLI::CallForVersion& version) {
      surroundings.out << version.what() << '\n';
      return ExitStatus::kDone;
    } catch (const CLI::ExtrasError&) {
      return Refuse(UnexpectedArguments(), surroundings.errors);
    } catch (const CLI::RequiredError& error) {
      return Refuse(WrongCommand().value_or(LacksCommand() ? "A command is required" : error.what()),
                    surroundings.errors);
    } catch (const CLI::ParseError& error) {
      return Refuse(error.what(), surroundings.errors);
    }
    if (const auto empty = EmptyArgument()) {
      return Refuse(*empty + " is empty, as what a shell puts in for a missing file is", surroundings.errors);
    }
    return commands_.RunChosen(surroundings);
  }

 private:
  /// Makes "help", with the words of a command behind it or none, what the option of that name is.
  static void AskForHelp(std::vector<std::string>& arguments) {
    if (arguments.empty() || arguments.front() != "help") return;
    arguments.erase(arguments.begin());
    arguments.emplace_back("--help");
  }

  /// The command that the arguments name: the program itself, or a group, as far as they name none within.
  [[nodiscard]] const CLI::App& Named() const {
    const CLI::App* command = &app_;
    while (!command->get_subcommands().empty()) command = command->get_subcommands().front();
    return *command;
  }

  [[nodiscard]] bool LacksCommand() const { return !Named().get_subcommands({}).empty(); }

  /// Which word stands in the place of a command and is none. Only what could be the name of a command is
  /// repeated: anything else may be a URL in the wrong place.
  [[nodiscard]] std::optional<std::string> WrongCommand() const {
    const std::vector<std::string> words = Named().remaining();
    if (!LacksCommand() || words.empty()) return std::nullopt;
    const std::string& word = words.front();
    if (word.starts_with('-')) return UnexpectedArguments();
    if (!std::ranges::all_of(word, IsPartOfName)) return "What stands in the place of the command is none";
    std::vector<std::string> names;
    for (const CLI::App* inner : Named().get_subcommands({})) names.push_back(inner->get_name());
    const auto meant = NearestWord(word, names);
    return "There is no command \"" + word + "\"" + (meant ? "; did you mean \"" + *meant + "\"?" : "");
  }

  static bool IsPartOfName(char character) {
    return character == '-' || (character >= 'a' && character <= 'z') ||
           (character >= 'A' && character <= 'Z');
  }

  /// The first argument that may be left out and is there without being anything, which a command would take
  /// for left out.
  [[nodiscard]] std::optional<std::string> EmptyArgument() const {
    for (const CLI::Option* option : Named().get_options()) {
      if (option->get_required()) continue;
      for (const std::string& text : option->results()) {
        if (text.empty()) return option->get_name();
      }
    }
    return std::nullopt;
  }

  /// Names unknown options, but no other argument: that may be a URL in the wrong place.
  std::string UnexpectedArguments() const {
    std::string options;
    for (const std::string& argument : app_.remaining(true)) {
      if (argument.starts_with('-')) options += " " + argument.substr(0, argument.find('='));
    }
    return options.empty() ? "There are more arguments than the command takes"
                           : "There is no option" + options;
  }

  /// The program's name, with the command behind it that the arguments name.
  [[nodiscard]] std::string NamedCommand() const {
    std::string name;
    for (const CLI::App* command = &Named(); command->get_parent() != nullptr;
         command = command->get_parent()) {
      name = ' ' + command->get_name() + name;
    }
    return "ferrowindctl" + name;
  }

  [[nodiscard]] ExitStatus Refuse(const std::string& text, std::ostream& errors) const {
    errors << "ferrowindctl: " << text << "\nRun \"" << NamedCommand() << " --help\" for how to use it.\n";
    return failed_;
  }

  ExitStatus failed_;
  CLI::App app_;
  CommandSet commands_{app_};
};

}  // namespace

ExitStatus RunCommandLine(const std::vector<std::string>& arguments, const platform::EngineRegistry& engines,
                          std::ostream& out, std::ostream& errors) {
  const bool asks_for_day = !arguments.empty() && arguments.front() == "date";
  const ExitStatus failed = asks_for_day ? ExitStatus::kNotAnswered : ExitStatus::kNotDone;
  try {
    const ExitStatus status = CommandLine(failed).Run(arguments, {engines, out, errors});
    out.flush();
    if (out) return status;
    errors << "ferrowindctl: cannot write the output"
           << (status == ExitStatus::kDone ? "; all the rest is done" : "") << '\n';
  } catch (const std::exception& error) {
    errors << "ferrowindctl: " << OneLine(error.what()) << '\n';
  }
  return failed;
}

}  // namespace ferrowind::host
