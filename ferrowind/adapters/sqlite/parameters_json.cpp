#include "ferrowind/adapters/sqlite/parameters_json.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <variant>

#include "ferrowind/platform/values/date.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::sqlite {
namespace {

using platform::Value;

void AppendEscaped(char character, std::string& json) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  switch (character) {
    case '"':
    case '\\':
      json += '\\';
      json += character;
      return;
    case '\b':
      json += "\\b";
      return;
    case '\f':
      json += "\\f";
      return;
    case '\n':
      json += "\\n";
      return;
    case '\r':
      json += "\\r";
      return;
    case '\t':
      json += "\\t";
      return;
    default:
      break;
  }
  const auto code = static_cast<unsigned char>(character);
  if (code >= 0x20) {
    json += character;
    return;
  }
  json += "\\u00";
  json += kDigits[code / 16];
  json += kDigits[code % 16];
}

/// Appends the value that it is called with.
struct Writer {
  std::string& json;

  void operator()(std::monostate) const { json += "null"; }
  void operator()(std::int16_t value) const { json += std::to_string(value); }
  void operator()(std::int32_t value) const { json += std::to_string(value); }
  void operator()(const std::string& value) const {
    json += '"';
    for (const char character : value) AppendEscaped(character, json);
    json += '"';
  }
  void operator()(platform::Date value) const { (*this)(value.ToIso()); }
  /// No parameter is of another type.
  template <typename Other>
  void operator()(const Other& /*value*/) const {
    throw platform::TypeMismatch();
  }
};

}  // namespace

std::string ParametersAsJson(const std::vector<platform::ParameterDescription>& parameters,
                             const std::vector<Value>& inputs) {
  std::string json = "{";
  const Writer write{json};
  for (const auto& parameter : parameters) {
    if (parameter.direction != platform::ParameterDirection::kInput) continue;
    if (json.size() > 1) json += ", ";
    write(parameter.name.substr(1));
    json += " : ";
    std::visit(write, inputs.at(static_cast<std::size_t>(parameter.position) - 1).Get());
  }
  return json + "}";
}

}  // namespace ferrowind::sqlite
