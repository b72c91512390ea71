#include "ferrowind/adapters/grid_engine/value_order.h"

#include <cmath>
#include <string>

#include "ferrowind/platform/values/case_fold.h"

namespace ferrowind::grid_engine {

using platform::Date;
using platform::Value;

namespace {

template <typename T>
int ThreeWay(const T& left, const T& right) {
  if (left < right) return -1;
  return right < left ? 1 : 0;
}

int CompareNumbers(const Value& left, const Value& right) {
  const WholeNumber whole_left = AsWholeNumber(left);
  const WholeNumber whole_right = AsWholeNumber(right);
  if (whole_left.is_whole && whole_right.is_whole) return ThreeWay(whole_left.amount, whole_right.amount);
  const double double_left = AsDouble(left);
  const double double_right = AsDouble(right);
  if (std::isnan(double_left) || std::isnan(double_right)) {
    return ThreeWay(std::isnan(double_left) ? 0 : 1, std::isnan(double_right) ? 0 : 1);
  }
  return ThreeWay(double_left, double_right);
}

}  // namespace

ValueKind KindOf(const Value& value) {
  if (value.IsEmpty()) return ValueKind::kEmpty;
  if (value.Is<std::string>()) return ValueKind::kText;
  if (value.Is<Date>()) return ValueKind::kDate;
  return value.IsObject() ? ValueKind::kObject : ValueKind::kNumber;
}

WholeNumber AsWholeNumber(const Value& value) {
  if (const auto* wide = value.If<std::int64_t>()) return {true, *wide};
  if (const auto* normal = value.If<std::int32_t>()) return {true, *normal};
  if (const auto* narrow = value.If<std::int16_t>()) return {true, *narrow};
  if (const auto* boolean = value.If<bool>()) return {true, *boolean ? 1 : 0};
  return {};
}

double AsDouble(const Value& value) {
  double amount = 0;
  if (const auto* wide = value.If<double>()) {
    amount = *wide;
  } else if (const auto* narrow = value.If<float>()) {
    amount = static_cast<double>(*narrow);
  } else {
    amount = static_cast<double>(AsWholeNumber(value).amount);
  }
  return amount == 0 ? 0 : amount;
}

int CompareValues(const Value& left, const Value& right) {
  const ValueKind kind = KindOf(left);
  if (const int kinds = ThreeWay(kind, KindOf(right)); kinds != 0) return kinds;
  switch (kind) {
    case ValueKind::kNumber:
      return CompareNumbers(left, right);
    case ValueKind::kDate:
      return ThreeWay(std::get<Date>(left.Get()), std::get<Date>(right.Get()));
    case ValueKind::kText:
      return ThreeWay(platform::FoldCase(std::get<std::string>(left.Get())),
                      platform::FoldCase(std::get<std::string>(right.Get())));
    default:
      return 0;
  }
}

bool SameValue(const Value& left, const Value& right) {
  if (left.Is<std::string>() || left.IsObject()) return left == right;
  return CompareValues(left, right) == 0;
}

}  // namespace ferrowind::grid_engine
