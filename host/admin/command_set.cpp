#include "host/admin/command_set.h"

#include <CLI/CLI.hpp>
#include <csignal>
#include <map>
#include <stdexcept>
#include <utility>

namespace ferrowind::host {
namespace {

const std::map<std::string, OutputFormat> kFormats = {
    {"table", OutputFormat::kTable}, {"json", OutputFormat::kJson}, {"csv", OutputFormat::kCsv}};

/// Help tells the groups of options, but not those of arguments.
constexpr const char* kDatabases = "Databases";

}  // namespace

CLI::App& CommandSet::Add(const char* name, const char* description, const char* manual,
                          CommandAction action) {
  CLI::App& command = AddTo(program_, name, description, std::move(action));
  command.footer(manual);
  return command;
}

CLI::App& CommandSet::AddGroup(const char* name, const char* description, const char* manual) {
  CLI::App& group = *program_.add_subcommand(name, description);
  group.footer(manual);
  group.require_subcommand(1);
  return group;
}

CLI::App& CommandSet::AddTo(CLI::App& group, const char* name, const char* description,
                            CommandAction action) {
  CLI::App* const command = group.add_subcommand(name, description);
  actions_.emplace_back(command, std::move(action));
  return *command;
}

ExitStatus CommandSet::RunChosen(const CommandSurroundings& surroundings) const {
  for (const auto& [command, action] : actions_) {
    if (command->parsed()) return action(surroundings);
  }
  throw std::logic_error("No command was named");
}

CommandAction Changing(CommandAction action) {
  return [action = std::move(action)](const CommandSurroundings& surroundings) {
    // For the rest of the program, which writes the end of the output later.
    std::signal(SIGPIPE, SIG_IGN);
    return action(surroundings);
  };
}

void TakeDatabase(CLI::Option& argument) { argument.group(kDatabases); }

bool TakesDatabase(const CLI::Option& argument) {
  return argument.get_name(true) == "URL" || argument.get_group() == kDatabases;
}

void AddFormat(CLI::App& command, OutputFormat& format) {
  command
      .add_option_function<std::string>(
          "--format", [&format](const std::string& name) { format = kFormats.at(name); },
          "table (the default), json or csv")
      ->check(CLI::IsMember(kFormats))
      ->option_text("FORMAT");
}

}  // namespace ferrowind::host
