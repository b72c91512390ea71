#include "host/admin/number_argument.h"

#include <CLI/CLI.hpp>
#include <charconv>
#include <system_error>
#include <utility>

namespace ferrowind::host {
namespace {

/// The parser's own reading takes the base from how a number begins, and "011" for nine.
int ReadNumber(const std::string& text, const std::string& name, const NumberRange& range) {
  int number = 0;
  const char* const end = text.data() + text.size();
  const auto [read_to, error] = std::from_chars(text.data(), end, number);
  if (read_to != end || error == std::errc::invalid_argument) {
    throw CLI::ValidationError("\"" + text + "\" is no whole number, as " + name + " is");
  }
  if (error != std::errc() || number < range.lowest || number > range.highest) {
    throw CLI::ValidationError(name + " is from " + std::to_string(range.lowest) + " to " +
                               std::to_string(range.highest) + ", not " + text);
  }
  return number;
}

}  // namespace

CLI::Option& AddNumber(CLI::App& command, const std::string& name, const std::string& description,
                       const NumberRange& range, std::function<void(int)> take) {
  const auto read = [name, range, take = std::move(take)](const std::string& text) {
    take(ReadNumber(text, name, range));
  };
  return *command.add_option_function<std::string>(name, read, description)->type_name("INT");
}

}  // namespace ferrowind::host
