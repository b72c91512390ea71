#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/data/source_values.h"
#include "ferrowind/platform/database/engine_registry.h"
#include "ferrowind/platform/values/failure.h"
#include "ferrowind/platform/values/phrase.h"
#include "ferrowind/platform/values/record_set.h"

namespace ferrowind::host {

/// What a call through the component's gateway gave.
struct ProcedureOutcome {
  /// The procedure's, or -1 when the call failed before it was read.
  std::int32_t return_value = 0;
  /// In the order in which the procedure produced them; none unless it returned 0.
  std::vector<std::shared_ptr<platform::RecordSet>> record_sets;
  /// What the gateway keeps as its pending failure.
  std::optional<platform::Failure> failure;
  /// Which text the procedure refused for its length.
  std::optional<platform::Phrase> too_long_text = {};
};

/// Runs `work` on a thread of its own, on which procedure calls go to the database of `connection_string`,
/// and returns when it has ended; what it throws is passed on. So the component's state of the calling
/// thread, which a host's windows may use already, stays as it is. `engines` must be safe to use on that
/// thread.
void RunWithDatabase(const platform::EngineRegistry& engines, const std::string& connection_string,
                     const std::function<void()>& work);

/// Calls a procedure by `ExecProc` on the calling thread's database.
[[nodiscard]] ProcedureOutcome CallProcedure(const std::string& procedure, const SourceValues& parameters);

}  // namespace ferrowind::host
