#pragma once

#include <memory>

#include "ferrowind/adapters/automation/outside_call.h"
#include "ferrowind/platform/values/record_set.h"

namespace ferrowind::automation {

/// Copies a record set of the host's product family, from the row that it stands on to its end: `Fields` with
/// `Count` and an item for each position from 0, which have `Name` and `Value`; `EOF`; `MoveNext`. Failures
/// are those of the calls; and a set that does not end, with more rows than any dictionary has, is one too.
[[nodiscard]] std::shared_ptr<platform::RecordSet> CopyOfRecordSet(const OutsideCall& records);

}  // namespace ferrowind::automation
