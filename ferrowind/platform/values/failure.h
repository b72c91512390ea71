#pragma once

#include <cstdint>
#include <exception>
#include <string>

#include "ferrowind/export.h"

namespace ferrowind::platform {

/// The one exception type that crosses a port: a number and a description for the operator.
///
/// Adapters map the errors of their libraries to it and keep the native code and text in the description.
class FERROWIND_EXPORT Failure : public std::exception {
 public:
  /// `description` is UTF-8 and must hold no password.
  Failure(std::int32_t number, std::string description);

  /// One of the numbers below, the component's own 0x80040258, or a native error number of an adapter.
  [[nodiscard]] std::int32_t Number() const noexcept { return number_; }
  /// UTF-8; never holds a password.
  [[nodiscard]] const std::string& Description() const noexcept { return description_; }
  /// The description, alive as long as the failure.
  [[nodiscard]] const char* what() const noexcept override { return description_.c_str(); }

 private:
  std::int32_t number_;
  std::string description_;
};

/// The failure of a dialog or message that nobody will answer any more: the window that it belongs to has
/// closed, or the application is ending. Its number is `failure_number::kInterrupted`.
///
/// Whoever waited for the answer has nothing left to do, and nothing to tell the operator.
class FERROWIND_EXPORT Interruption : public Failure {
 public:
  /// `description` says what was left without an answer.
  explicit Interruption(std::string description);
};

/// Failure numbers that hosts know from the platform this component's interface was defined on.
namespace failure_number {
/// Invalid procedure call or argument: a value that the call does not take.
inline constexpr std::int32_t kInvalidArgument = 5;
/// A number or date outside the range of its type.
inline constexpr std::int32_t kOverflow = 6;
/// A position that no element has.
inline constexpr std::int32_t kSubscriptOutOfRange = 9;
/// A value that has no meaning as the type that is asked for.
inline constexpr std::int32_t kTypeMismatch = 13;
/// The number of an `Interruption`.
inline constexpr std::int32_t kInterrupted = 18;
/// Something was asked of an object that is not there yet, or not any more.
inline constexpr std::int32_t kObjectNotSet = 91;
/// An empty value where there must be one.
inline constexpr std::int32_t kInvalidUseOfNull = 94;
/// No object is made by the name that was asked for.
inline constexpr std::int32_t kCannotCreateObject = 429;
/// A key that the collection has already.
inline constexpr std::int32_t kDuplicateKey = 457;
/// A filter of a record set that does not parse.
inline constexpr std::int32_t kFilterNotUnderstood = 3001;
/// A field was asked for while the cursor stands on no row.
inline constexpr std::int32_t kNoCurrentRecord = 3021;
/// A record set has no field of that name.
inline constexpr std::int32_t kUnknownField = 3265;
/// A control of the toolkit has no element of that key.
inline constexpr std::int32_t kElementNotFound = 35601;
/// A control of the toolkit has an element of that key already.
inline constexpr std::int32_t kKeyNotUnique = 35602;
}  // namespace failure_number

///@{
/// The failures of the platform's collections and conversions, with the platform's own texts.
[[nodiscard]] FERROWIND_EXPORT Failure DuplicateKey();
[[nodiscard]] FERROWIND_EXPORT Failure InvalidArgument();
[[nodiscard]] FERROWIND_EXPORT Failure SubscriptOutOfRange();
[[nodiscard]] FERROWIND_EXPORT Failure TypeMismatch();
[[nodiscard]] FERROWIND_EXPORT Failure Overflow();
[[nodiscard]] FERROWIND_EXPORT Failure InvalidUseOfNull();
///@}

}  // namespace ferrowind::platform
