#include "ferrowind/adapters/headless/call_log.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/record_set.h"

namespace ferrowind::headless {
namespace {

std::string Quoted(const std::string& text) {
  std::string quoted = "\"";
  for (const char c : text) {
    if (c == '\n') {
      quoted += "\\n";
    } else if (c == '\r') {
      quoted += "\\r";
    } else {
      quoted += c;
    }
  }
  return quoted + "\"";
}

}  // namespace

std::vector<std::string> CallLog::Since(std::size_t mark) const {
  if (mark >= calls_.size()) return {};
  return {calls_.begin() + static_cast<std::ptrdiff_t>(mark), calls_.end()};
}

std::optional<std::size_t> CallLog::PositionOf(std::string_view call, std::size_t from) const {
  for (std::size_t i = from; i < calls_.size(); ++i) {
    if (calls_[i] == call) return i;
  }
  return std::nullopt;
}

std::size_t CallLog::CountOf(std::string_view call) const {
  return static_cast<std::size_t>(std::count(calls_.begin(), calls_.end(), call));
}

std::vector<std::string> CallLog::StartingWith(std::string_view prefix) const {
  std::vector<std::string> found;
  std::copy_if(calls_.begin(), calls_.end(), std::back_inserter(found),
               [&](const std::string& call) { return call.starts_with(prefix); });
  return found;
}

std::vector<std::string> CallLog::Containing(std::string_view part) const {
  std::vector<std::string> found;
  std::copy_if(calls_.begin(), calls_.end(), std::back_inserter(found),
               [&](const std::string& call) { return call.find(part) != std::string::npos; });
  return found;
}

std::vector<std::string> CallLog::Between(std::string_view first, std::string_view last) const {
  const auto begin = PositionOf(first);
  if (!begin) return {};
  const auto end = PositionOf(last, *begin + 1);
  if (!end) return {};
  return {calls_.begin() + static_cast<std::ptrdiff_t>(*begin),
          calls_.begin() + static_cast<std::ptrdiff_t>(*end) + 1};
}

std::string ArgumentText(const platform::Value& value) {
  if (value.IsEmpty()) return "empty";
  if (const auto* text = value.If<std::string>()) return Quoted(*text);
  if (const auto* records = value.If<platform::Value::Object>()) {
    if (*records == nullptr) return "none";
    return "records " + std::to_string((*records)->RowCount()) + " rows";
  }
  // Conversions refuse what is no finite number, which a port must refuse itself and a log must show.
  if (const auto* single = value.If<float>(); single != nullptr && !std::isfinite(*single)) {
    return std::to_string(*single);
  }
  if (const auto* number = value.If<double>(); number != nullptr && !std::isfinite(*number)) {
    return std::to_string(*number);
  }
  return platform::ToText(value);
}

std::string ArgumentText(const std::vector<std::string>& texts) {
  std::string list = "[";
  for (const auto& text : texts) {
    if (list.size() > 1) list += ", ";
    list += text;
  }
  return list + "]";
}

std::string CallText(std::string_view object, std::string_view method,
                     const std::vector<platform::Value>& arguments) {
  std::string call = std::string(object) + "." + std::string(method) + "(";
  bool is_first = true;
  for (const auto& argument : arguments) {
    if (!is_first) call += ", ";
    call += ArgumentText(argument);
    is_first = false;
  }
  return call + ")";
}

}  // namespace ferrowind::headless
