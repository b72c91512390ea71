#pragma once

#include <oaidl.h>

#include "ferrowind/adapters/automation/owned_variant.h"
#include "ferrowind/platform/values/value.h"

namespace ferrowind::automation {

/// What a host passed, without the references around it: a copy that refers to nothing of the host's but
/// objects. A chain of references that does not end soon is the failure Type mismatch.
[[nodiscard]] OwnedVariant WithoutReferences(const VARIANT& variant);

/// The value that a VARIANT holds, whatever references are around it. Empty, NULL and a missing argument are
/// empty. An object is its default property, and without one an object that is none. Whole numbers too wide
/// for 64 bits and currencies are doubles; of a date the time of day is dropped. What has no meaning as a
/// value, such as an array or an error number, is the failure Type mismatch.
[[nodiscard]] platform::Value ValueOf(const VARIANT& variant);

/// The VARIANT that a host reads the value as. A record set is the failure Type mismatch.
[[nodiscard]] OwnedVariant VariantOf(const platform::Value& value);

}  // namespace ferrowind::automation
