#include "ferrowind/platform/values/row_filter_step.h"

#include <compare>
#include <type_traits>

#include "ferrowind/platform/values/case_fold.h"

namespace ferrowind::platform {
namespace {

namespace outcome = comparison_outcome;

std::uint8_t OutcomeOf(std::partial_ordering ordering) {
  if (std::is_lt(ordering)) return outcome::kLess;
  if (std::is_gt(ordering)) return outcome::kGreater;
  return std::is_eq(ordering) ? outcome::kEqual : outcome::kNone;
}

/// Exact where a conversion of the whole number to double would round.
std::partial_ordering Compare(std::int64_t whole, double number) {
  constexpr double kBeyondInt64 = 9223372036854775808.0;
  if (number >= kBeyondInt64) return std::partial_ordering::less;
  if (number < -kBeyondInt64) return std::partial_ordering::greater;
  if (number != number) return std::partial_ordering::unordered;
  const auto truncated = static_cast<std::int64_t>(number);
  if (whole != truncated) return whole <=> truncated;
  return static_cast<double>(truncated) <=> number;
}

std::partial_ordering Compare(double number, std::int64_t whole) {
  const std::partial_ordering reversed = Compare(whole, number);
  if (std::is_lt(reversed)) return std::partial_ordering::greater;
  return std::is_gt(reversed) ? std::partial_ordering::less : reversed;
}

std::partial_ordering Compare(std::int64_t left, std::int64_t right) { return left <=> right; }
std::partial_ordering Compare(double left, double right) { return left <=> right; }

template <typename Number>
std::uint8_t CompareWithNumber(const Value& value, Number literal) {
  return std::visit(
      [literal](const auto& held) -> std::uint8_t {
        using T = std::decay_t<decltype(held)>;
        if constexpr (std::is_same_v<T, bool>) {
          return OutcomeOf(Compare(std::int64_t{held ? -1 : 0}, literal));  // As `ToDouble` counts a boolean.
        } else if constexpr (std::is_integral_v<T>) {
          return OutcomeOf(Compare(static_cast<std::int64_t>(held), literal));
        } else if constexpr (std::is_floating_point_v<T>) {
          return OutcomeOf(Compare(static_cast<double>(held), literal));
        } else {
          return outcome::kNone;
        }
      },
      value.Get());
}

/// An empty field equals NULL; for a filled one any outcome but "equal" says that it does not.
std::uint8_t CompareWithNull(const Value& value) {
  return value.IsEmpty() ? outcome::kEqual : outcome::kLess;
}

std::uint8_t CompareWithText(const Value& value, const std::string& literal) {
  const auto* const text = value.If<std::string>();
  return text ? OutcomeOf(CompareIgnoringCase(*text, literal)) : outcome::kNone;
}

std::uint8_t CompareWithDate(const Value& value, const Date& literal) {
  const auto* const date = value.If<Date>();
  return date ? OutcomeOf(*date <=> literal) : outcome::kNone;
}

}  // namespace

bool RowFilterStep::Passes(const Value& value) const {
  std::uint8_t found = outcome::kNone;
  if (const auto* whole = std::get_if<std::int64_t>(&literal)) {
    found = CompareWithNumber(value, *whole);
  } else if (std::holds_alternative<std::monostate>(literal)) {
    found = CompareWithNull(value);
  } else if (const auto* text = std::get_if<std::string>(&literal)) {
    found = CompareWithText(value, *text);
  } else if (const auto* date = std::get_if<Date>(&literal)) {
    found = CompareWithDate(value, *date);
  } else if (const auto* number = std::get_if<double>(&literal)) {
    found = CompareWithNumber(value, *number);
  }
  return (found & accepted) != 0;
}

}  // namespace ferrowind::platform
