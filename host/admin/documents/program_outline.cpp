#include "host/admin/documents/program_outline.h"

#include <CLI/CLI.hpp>
#include <sstream>

#include "host/admin/command_set.h"

namespace ferrowind::host {
namespace {

ValueKind KindOf(const CLI::Option& option, const std::string& value_name) {
  if (TakesDatabase(option)) return ValueKind::kDatabase;
  return value_name == "FILE" ? ValueKind::kFile : ValueKind::kAnything;
}

OutlinedArgument ArgumentOf(const CLI::Option& option) {
  const std::string name = option.get_name(true);
  return {.name = name,
          .description = option.get_description(),
          .is_required = option.get_required(),
          .is_repeated = option.get_items_expected_max() > 1,
          .kind = KindOf(option, name)};
}

/// The values of the option when it takes one of several: its type then ends with them, as "TEXT:{csv,json}".
std::vector<std::string> ChoicesOf(const CLI::Option& option) {
  std::vector<std::string> choices;
  const std::string type = option.get_type_name();
  const std::size_t begin = type.find('{');
  if (begin == std::string::npos) return choices;
  std::istringstream list(type.substr(begin + 1, type.find('}', begin) - begin - 1));
  for (std::string choice; std::getline(list, choice, ',');) choices.push_back(choice);
  return choices;
}

OutlinedOption OptionOf(const CLI::Option& option) {
  OutlinedOption outlined{.description = option.get_description()};
  for (const std::string& name : option.get_snames()) outlined.names.push_back("-" + name);
  for (const std::string& name : option.get_lnames()) outlined.names.push_back("--" + name);
  if (option.get_type_size() != 0) {
    outlined.value = option.get_option_text().empty() ? option.get_type_name() : option.get_option_text();
    outlined.choices = ChoicesOf(option);
    outlined.kind = KindOf(option, outlined.value);
  }
  return outlined;
}

OutlinedCommand CommandOf(const CLI::App& command, const std::string& manual_around) {
  OutlinedCommand outlined{.name = command.get_name(), .description = command.get_description()};
  // A command takes over the manual of its group.
  if (command.get_footer() != manual_around) outlined.manual = command.get_footer();
  for (const CLI::Option* option : command.get_options()) {
    if (option->get_positional()) {
      outlined.arguments.push_back(ArgumentOf(*option));
    } else {
      outlined.options.push_back(OptionOf(*option));
    }
  }
  for (const CLI::App* inner : command.get_subcommands([](const CLI::App*) { return true; })) {
    outlined.commands.push_back(CommandOf(*inner, command.get_footer()));
  }
  return outlined;
}

}  // namespace

OutlinedCommand OutlineOf(const CLI::App& program) { return CommandOf(program, ""); }

}  // namespace ferrowind::host
