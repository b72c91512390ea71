#include "host/admin/command_line.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <ostream>

#include "host/admin/command_set.h"
#include "host/admin/command_table.h"
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
    try {
      // The parser takes them from the back.
      std::reverse(arguments.begin(), arguments.end());
      app_.parse(std::move(arguments));
    } catch (const CLI::CallForHelp&) {
      surroundings.out << app_.help();
      return ExitStatus::kDone;
    } catch (const CLI::CallForVersion& version) {
      surroundings.out << version.what() << '\n';
      return ExitStatus::kDone;
    } catch (const CLI::ExtrasError&) {
      return Refuse(UnexpectedArguments(), surroundings.errors);
    } catch (const CLI::ConversionError& error) {
      return Refuse(NoNumber(error.what()), surroundings.errors);
    } catch (const CLI::ParseError& error) {
      return Refuse(error.what(), surroundings.errors);
    }
    return commands_.RunChosen(surroundings);
  }

 private:
  /// Names unknown options, but no other argument: that may be a URL in the wrong place.
  std::string UnexpectedArguments() const {
    std::string options;
    for (const std::string& argument : app_.remaining(true)) {
      if (argument.starts_with('-')) options += " " + argument.substr(0, argument.find('='));
    }
    return options.empty() ? "There are more arguments than the command takes"
                           : "There is no option" + options;
  }

  /// The parser's "Could not convert: NUMBER = abc" in words; all that it converts are whole numbers.
  static std::string NoNumber(const std::string& text) {
    const std::size_t colon = text.find(": ");
    const std::size_t equals = text.find(" = ");
    if (colon == std::string::npos || equals == std::string::npos || equals < colon) return text;
    return "\"" + text.substr(equals + 3) + "\" is no whole number, as " +
           text.substr(colon + 2, equals - colon - 2) + " is";
  }

  /// The program's name, with the command behind it that the arguments name.
  [[nodiscard]] std::string NamedCommand() const {
    std::string name = "ferrowindctl";
    const CLI::App* command = &app_;
    while (!command->get_subcommands().empty()) {
      command = command->get_subcommands().front();
      name += ' ' + command->get_name();
    }
    return name;
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
