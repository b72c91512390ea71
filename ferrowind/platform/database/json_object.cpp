#include "ferrowind/platform/database/json_object.h"

#include <cstdint>
#include <variant>

#include "ferrowind/platform/values/date.h"
#include "ferrowind/platform/values/failure.h"
#include "ferrowind/platform/values/json_text.h"

namespace ferrowind::platform {
namespace {

/// Appends the value that it is called with.
struct Writer {
  std::string& json;

  void operator()(std::monostate) const { json += "null"; }
  void operator()(std::int16_t value) const { json += std::to_string(value); }
  void operator()(std::int32_t value) const { json += std::to_string(value); }
  void operator()(std::string_view value) const { AppendJsonText(value, json); }
  void operator()(const std::string& value) const { (*this)(std::string_view(value)); }
  void operator()(Date value) const { (*this)(value.ToIso()); }
  /// No parameter is of another type.
  template <typename Other>
  void operator()(const Other& /*value*/) const {
    throw TypeMismatch();
  }
};

}  // namespace

void JsonObject::Add(std::string_view name, const Value& value) {
  members_ += members_.empty() ? "{" : ", ";
  const Writer write{members_};
  write(name);
  members_ += " : ";
  std::visit(write, value.Get());
}

}  // namespace ferrowind::platform
