#include "ferrowind/adapters/operator_services/setting_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string_view>
#include <type_traits>
#include <variant>

#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind {

using platform::Date;
using platform::Value;

namespace {

constexpr std::string_view kText = "Text:";

template <typename Number>
std::string NumberText(Number number) {
  // The shortest text that reads back as the same number.
  std::array<char, 64> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), number).ptr;
  return {text.data(), end};
}

template <typename Number>
Value ReadNumber(std::string_view text) {
  Number number{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return {};
  return number;
}

Value ReadBoolean(std::string_view text) {
  if (text == "True") return true;
  if (text == "False") return false;
  return {};
}

Value ReadDate(std::string_view text) {
  const auto date = Date::FromIso(text);
  return date ? Value(*date) : Value();
}

/// The stored types, each with how the text behind its name is read: empty when it does not fit.
struct Type {
  std::string_view prefix;
  Value (*read)(std::string_view text);
};

constexpr std::array kTypes = {
    Type{"Boolean:", ReadBoolean},
    Type{"Integer:", ReadNumber<std::int16_t>},
    Type{"Long:", ReadNumber<std::int32_t>},
    Type{"LongLong:", ReadNumber<std::int64_t>},
    Type{"Single:", ReadNumber<float>},
    Type{"Double:", ReadNumber<double>},
    Type{"Date:", ReadDate},
};

bool BeginsWithType(std::string_view text) {
  return text.starts_with(kText) || std::any_of(kTypes.begin(), kTypes.end(), [&](const Type& type) {
           return text.starts_with(type.prefix);
         });
}

struct TextOf {
  std::string operator()(std::monostate /*empty*/) const { return {}; }
  std::string operator()(bool value) const { return value ? "Boolean:True" : "Boolean:False"; }
  std::string operator()(std::int16_t value) const { return "Integer:" + NumberText(value); }
  std::string operator()(std::int32_t value) const { return "Long:" + NumberText(value); }
  std::string operator()(std::int64_t value) const { return "LongLong:" + NumberText(value); }
  std::string operator()(float value) const { return "Single:" + NumberText(value); }
  std::string operator()(double value) const { return "Double:" + NumberText(value); }
  std::string operator()(const std::string& value) const {
    return BeginsWithType(value) ? std::string(kText) + value : value;
  }
  std::string operator()(const Date& value) const { return "Date:" + value.ToIso(); }
  std::string operator()(const Value::Object& /*object*/) const { throw platform::TypeMismatch(); }
};

}  // namespace

std::string SettingText(const Value& value) { return std::visit(TextOf{}, value.Get()); }

Value SettingValue(const std::string& text) {
  const std::string_view all = text;
  if (all.starts_with(kText)) return std::string(all.substr(kText.size()));
  for (const Type& type : kTypes) {
    if (!all.starts_with(type.prefix)) continue;
    const Value value = type.read(all.substr(type.prefix.size()));
    if (!value.IsEmpty()) return value;
  }
  return text;
}

}  // namespace ferrowind
