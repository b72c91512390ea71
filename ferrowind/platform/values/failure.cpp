#include "ferrowind/platform/values/failure.h"

#include <utility>

namespace ferrowind::platform {

Failure::Failure(std::int32_t number, std::string description)
    : number_(number), description_(std::move(description)) {}

Interruption::Interruption(std::string description)
    : Failure(failure_number::kInterrupted, std::move(description)) {}

Failure DuplicateKey() {
  return {failure_number::kDuplicateKey, "This key is already associated with an element of this collection"};
}
Failure InvalidArgument() { return {failure_number::kInvalidArgument, "Invalid procedure call or argument"}; }
Failure SubscriptOutOfRange() { return {failure_number::kSubscriptOutOfRange, "Subscript out of range"}; }
Failure TypeMismatch() { return {failure_number::kTypeMismatch, "Type mismatch"}; }
Failure Overflow() { return {failure_number::kOverflow, "Overflow"}; }
Failure InvalidUseOfNull() { return {failure_number::kInvalidUseOfNull, "Invalid use of Null"}; }

}  // namespace ferrowind::platform
