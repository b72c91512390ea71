#include "ferrowind/data/error_reporting.h"

#include "ferrowind/data/module_state.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind {
namespace {

const ErrorTable& FilledErrorTable() {
  ModuleState& module = Module();
  if (!module.is_error_table_filled) {
    module.is_error_table_filled = true;
    FillErrorTable(module.error_table);
  }
  return module.error_table;
}

}  // namespace

void ShowErrorMessage(const std::int32_t& index) {
  const ErrorTable& table = FilledErrorTable();
  ShowPendingFailures();
  if (index < 0 || index >= static_cast<std::int32_t>(table.size())) throw platform::SubscriptOutOfRange();
  const std::string text = "Tessaro Calendar. " + table[static_cast<std::size_t>(index)].message;
  SharedServicesObject().ShowMessage(text, kErrorStyle, 1, 1, nullptr, "", true, true);
}

void ShowPendingFailures() {
  ModuleState& module = Module();
  for (std::int32_t i = 0; i < module.pending_failure_count; ++i) {
    // Copied, because a call that another handler makes while the report is on show replaces the record.
    const FailureRecord pending = module.pending_failures[static_cast<std::size_t>(i)];
    SharedServicesObject().ReportError(pending.number, pending.description);
  }
  module.pending_failure_count = 0;
  const FailureRecord runtime = module.runtime_failure;
  if (!platform::Trim(runtime.description).empty()) {
    SharedServicesObject().ReportError(runtime.number, runtime.description);
  }
  module.runtime_failure = {};
}

}  // namespace ferrowind
