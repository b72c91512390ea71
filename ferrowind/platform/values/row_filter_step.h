#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <variant>

#include "ferrowind/export.h"
#include "ferrowind/platform/values/date.h"
#include "ferrowind/platform/values/value.h"

namespace ferrowind::platform {

/// The outcomes of comparing a field with a literal. A comparison operator is the set of those that it
/// accepts; what cannot be compared has no outcome, so no operator accepts it.
namespace comparison_outcome {
///@{
/// Bits, so that a set of outcomes is a sum of them.
inline constexpr std::uint8_t kNone = 0;
inline constexpr std::uint8_t kLess = 1;
inline constexpr std::uint8_t kEqual = 2;
inline constexpr std::uint8_t kGreater = 4;
///@}
}  // namespace comparison_outcome

/// One comparison of a compiled row filter, and where to go on from it.
struct FERROWIND_EXPORT RowFilterStep {
  /// NULL, a whole number, another number, text, or a date.
  using Literal = std::variant<std::monostate, std::int64_t, double, std::string, Date>;

  ///@{
  /// In place of a next step: the row passes the filter, or does not.
  static constexpr std::uint32_t kAccept = UINT32_MAX;
  static constexpr std::uint32_t kReject = UINT32_MAX - 1;
  ///@}

  /// The position of the field that is compared.
  std::size_t field = 0;
  /// A set of `comparison_outcome`s.
  std::uint8_t accepted = comparison_outcome::kNone;
  /// What it is compared with.
  Literal literal = {};
  ///@{
  /// The positions of the next step, or `kAccept`, or `kReject`.
  std::uint32_t if_true = kAccept;
  std::uint32_t if_false = kReject;
  ///@}

  /// Whether the field's value `value` passes the comparison. Allocates nothing.
  [[nodiscard]] bool Passes(const Value& value) const;
};

}  // namespace ferrowind::platform
