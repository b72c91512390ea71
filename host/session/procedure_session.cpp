#include "host/session/procedure_session.h"

#include <exception>
#include <thread>

#include "ferrowind/adapters/windowless/windowless_platform.h"
#include "ferrowind/data/exec_proc.h"
#include "ferrowind/data/module_state.h"

namespace ferrowind::host {

void RunWithDatabase(const platform::EngineRegistry& engines, const std::string& connection_string,
                     const std::function<void()>& work) {
  const WindowlessPlatform surroundings(engines, connection_string);
  std::exception_ptr thrown;
  std::thread thread([&] {
    try {
      AttachPlatform(surroundings.Get());
      EnsureDictionaryObject();
      work();
    } catch (...) {
      thrown = std::current_exception();
    }
  });
  thread.join();
  if (thrown) std::rethrow_exception(thrown);
}

ProcedureOutcome CallProcedure(const std::string& procedure, const SourceValues& parameters) {
  ProcedureOutcome outcome;
  std::shared_ptr<SourceValues> results;
  outcome.return_value = ExecProc(procedure, &parameters, results);
  if (Module().pending_failure_count != 0) {
    const FailureRecord& pending = Module().pending_failures.front();
    outcome.failure.emplace(pending.number, pending.description);
  }
  outcome.too_long_text = Module().too_long_text;
  for (std::int32_t i = 1; results && i <= results->Count(); ++i) {
    outcome.record_sets.push_back(*results->Values(i)->Value.If<platform::Value::Object>());
  }
  return outcome;
}

}  // namespace ferrowind::host
