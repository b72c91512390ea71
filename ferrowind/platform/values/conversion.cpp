#include "ferrowind/platform/values/conversion.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <type_traits>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::platform {
namespace {

double NumberIn(const std::string& text) {
  const std::string trimmed = Trim(text);
  const char* first = trimmed.data();
  const char* const last = first + trimmed.size();
  if (first != last && *first == '+') {
    ++first;
    if (first != last && *first == '-') throw TypeMismatch();
  }
  double number = 0;
  const auto [end, error] = std::from_chars(first, last, number);
  if (error == std::errc::result_out_of_range) throw Overflow();
  if (error != std::errc() || end != last || !std::isfinite(number)) throw TypeMismatch();
  return number;
}

template <typename Integer>
Integer ToInteger(const Value& value) {
  const double rounded = std::nearbyint(ToDouble(value));
  if (rounded < static_cast<double>(std::numeric_limits<Integer>::min()) ||
      rounded > static_cast<double>(std::numeric_limits<Integer>::max())) {
    throw Overflow();
  }
  return static_cast<Integer>(rounded);
}

template <typename Number>
std::string Decimal(Number number) {
  if constexpr (std::is_floating_point_v<Number>) {
    if (!std::isfinite(number)) throw Overflow();
    // Wide enough for the longest of all, the smallest doubles with their more than 320 decimals.
    std::array<char, 400> buffer{};
    const auto result =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, std::chars_format::fixed);
    return {buffer.data(), result.ptr};
  } else {
    return std::to_string(number);
  }
}

}  // namespace

std::int16_t ToInt16(const Value& value) { return ToInteger<std::int16_t>(value); }

std::int32_t ToInt32(const Value& value) {
  if (const auto* number = value.If<std::int32_t>()) return *number;
  return ToInteger<std::int32_t>(value);
}

float ToSingle(const Value& value) {
  const double number = ToDouble(value);
  if (std::abs(number) > static_cast<double>(std::numeric_limits<float>::max())) throw Overflow();
  return static_cast<float>(number);
}

double ToDouble(const Value& value) {
  return std::visit(
      [](const auto& held) -> double {
        using T = std::decay_t<decltype(held)>;
        if constexpr (std::is_same_v<T, std::monostate>) {
          throw InvalidUseOfNull();
        } else if constexpr (std::is_same_v<T, bool>) {
          return held ? -1 : 0;  // The platform's True is all bits set.
        } else if constexpr (std::is_arithmetic_v<T>) {
          const auto number = static_cast<double>(held);
          if (!std::isfinite(number)) throw Overflow();
          return number;
        } else if constexpr (std::is_same_v<T, std::string>) {
          return NumberIn(held);
        } else if constexpr (std::is_same_v<T, Date>) {
          return held.Serial();
        } else {
          throw TypeMismatch();
        }
      },
      value.Get());
}

Date ToDate(const Value& value) {
  if (const auto* date = value.If<Date>()) return *date;
  if (const auto* text = value.If<std::string>()) {
    if (const auto date = Date::FromIso(Trim(*text))) return *date;
    throw TypeMismatch();
  }
  return Date::FromSerial(ToInt32(value));
}

std::string ToText(const Value& value) {
  return std::visit(
      [](const auto& held) -> std::string {
        using T = std::decay_t<decltype(held)>;
        if constexpr (std::is_same_v<T, std::monostate>) {
          throw InvalidUseOfNull();
        } else if constexpr (std::is_same_v<T, bool>) {
          return held ? "True" : "False";
        } else if constexpr (std::is_arithmetic_v<T>) {
          return Decimal(held);
        } else if constexpr (std::is_same_v<T, std::string>) {
          return held;
        } else if constexpr (std::is_same_v<T, Date>) {
          return held.ToIso();
        } else {
          throw TypeMismatch();
        }
      },
      value.Get());
}

std::string ToTextOrEmpty(const Value& value) { return value.IsEmpty() ? std::string() : ToText(value); }

std::string Trim(const std::string& text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace ferrowind::platform
