#pragma once

#include <memory>
#include <string>

#include "ferrowind/data/source_values.h"
#include "ferrowind/platform/values/record_set.h"

namespace ferrowind {

/// The record set under that name of the gateway's results; null when there is no such entry or it holds
/// none.
[[nodiscard]] std::shared_ptr<platform::RecordSet> RecordSetIn(const std::shared_ptr<SourceValues>& results,
                                                               const std::string& name);

}  // namespace ferrowind
