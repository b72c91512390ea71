#include "host/admin/procedure_arguments.h"

#include <charconv>
#include <cstdint>

#include "ferrowind/platform/values/case_fold.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::host {
namespace {

using platform::ParameterDescription;
using platform::ParameterDirection;
using platform::ParameterType;
using platform::Value;

std::string WithoutAt(const std::string& name) { return name.starts_with('@') ? name.substr(1) : name; }

std::string KnownNames(const std::vector<ParameterDescription>& parameters) {
  std::string names;
  for (const auto& parameter : parameters) {
    if (parameter.direction != ParameterDirection::kInput) continue;
    names += (names.empty() ? "" : ", ") + WithoutAt(parameter.name);
  }
  return names.empty() ? "it has none" : "it has " + names;
}

const ParameterDescription& FindParameter(const std::string& name,
                                          const std::vector<ParameterDescription>& parameters) {
  for (const auto& parameter : parameters) {
    if (parameter.direction == ParameterDirection::kInput &&
        platform::CompareIgnoringCase(WithoutAt(parameter.name), name) == 0) {
      return parameter;
    }
  }
  throw ArgumentError("The procedure has no parameter \"" + name + "\"; " + KnownNames(parameters));
}

/// A number of the command line: whole, where the platform's own conversion would round a fraction.
Value WholeNumber(const std::string& text) {
  std::int64_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) throw platform::TypeMismatch();
  return number;
}

Value ReadValue(const ParameterDescription& parameter, const std::string& text) {
  const bool is_number = parameter.type == ParameterType::kInt16 || parameter.type == ParameterType::kInt32;
  try {
    return platform::ConvertForParameter(parameter, is_number ? WholeNumber(text) : Value(text));
  } catch (const platform::Failure&) {
    throw ArgumentError("The parameter " + WithoutAt(parameter.name) + " does not take \"" + text +
                        "\": it is of type " + platform::NameOf(parameter.type) +
                        (parameter.type == ParameterType::kDate ? " (YYYY-MM-DD)" : ""));
  }
}

}  // namespace

SourceValues ReadArguments(const std::vector<std::string>& arguments,
                           const std::vector<ParameterDescription>& parameters) {
  SourceValues values;
  for (const std::string& argument : arguments) {
    const auto equals = argument.find('=');
    const std::string name = WithoutAt(argument.substr(0, equals));
    const ParameterDescription& parameter = FindParameter(name, parameters);
    const Value value =
        equals == std::string::npos ? Value() : ReadValue(parameter, argument.substr(equals + 1));
    if (!values.Add(WithoutAt(parameter.name), value)) {
      throw ArgumentError("The parameter " + WithoutAt(parameter.name) + " is given twice");
    }
  }
  return values;
}

}  // namespace ferrowind::host
