#pragma once

#include <functional>
#include <string>

namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace ferrowind::host {

/// The whole numbers that an argument may be, both ends included.
struct NumberRange {
  int lowest = 0;
  int highest = 0;
};

/// Adds to `command` the argument or option `name`, a number in decimal digits with any zeros in front: "011"
/// is eleven, as the numbers of ISO 4217 are written. `take` gets it. What is no such number, or out of
/// `range`, is a wrong command line.
CLI::Option& AddNumber(CLI::App& command, const std::string& name, const std::string& description,
                       const NumberRange& range, std::function<void(int)> take);

}  // namespace ferrowind::host
