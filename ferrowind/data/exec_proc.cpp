#include "ferrowind/data/exec_proc.h"

#include <utility>

#include "ferrowind/data/ignoring_failure.h"
#include "ferrowind/data/module_state.h"
#include "ferrowind/data/pending_failure.h"
#include "ferrowind/data/runtime_failure.h"
#include "ferrowind/data/too_long_text.h"
#include "ferrowind/platform/database/command.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind {
namespace {

using platform::Command;
using platform::ResultCursor;
using platform::failure_number::kCannotCreateObject;

/// What a procedure returns when a value is missing, out of range or too long.
constexpr std::int32_t kWrongValue = 7;

/// The value as text, empty where it has none, as for a record set.
std::string TraceText(const platform::Value& value) {
  std::string text;
  IgnoringFailure([&] { text = platform::ToTextOrEmpty(value); });
  return text;
}

void BindParameters(Command& command, const SourceValues& params) {
  for (std::int32_t i = 1; i <= params.Count(); ++i) {
    const auto entry = params.Values(i);
    if (!entry) continue;
    const std::string name = "@" + entry->Name;
    IgnoringFailure([&] { command.SetParameter(name, entry->Value); });
    IgnoringFailure([&] { SharedServicesObject().TraceMessage(name + " = " + TraceText(entry->Value)); });
  }
}

void CollectRecordSets(std::unique_ptr<ResultCursor> cursor, SourceValues& results) {
  while (cursor) {
    IgnoringFailure([&] {
      results.Add(platform::ToText(results.Count() + 1), cursor->CloneDetached(platform::kUnspecified));
    });
    std::unique_ptr<ResultCursor> next;
    IgnoringFailure([&] { next = cursor->NextRecordSet(); });
    cursor = std::move(next);
  }
}

/// `result` is set as soon as the return value is read, so that a failure after that keeps it.
void Call(const std::string& procedure, const SourceValues* params, std::shared_ptr<SourceValues>& results,
          std::int32_t& result) {
  const auto command = AttachedPlatform().commands.CreateCommand();
  if (!command) throw platform::Failure(kCannotCreateObject, "The surroundings gave no command");
  command->SetType(platform::kStoredProcedureCommand);
  command->SetText(procedure);
  command->SetConnection(DictionaryObject().dic_ConnectionString());
  command->SetCursorLocation(platform::kClientSideCursor);
  command->RefreshParameters();
  SharedServicesObject().TraceMessage("Execute Procedure [" + procedure + "]");
  if (params != nullptr) BindParameters(*command, *params);

  auto cursor = command->Execute(platform::kUnspecified);
  result = platform::ToInt32(command->ParameterAt(0));
  // This line carries no procedure name, by intention.
  SharedServicesObject().TraceMessage(".Parameters(0).Value = " + platform::ToText(result));
  if (result != 0 || !cursor || cursor->State() != platform::kStateOpen) return;

  if (results) {
    results->Remove();
  } else {
    results = std::make_shared<SourceValues>();
  }
  CollectRecordSets(std::move(cursor), *results);
}

}  // namespace

std::int32_t ExecProc(const std::string& ProcName, const SourceValues* Params,
                      std::shared_ptr<SourceValues>& Results) {
  std::int32_t result = kCallFailed;
  Module().pending_failure_count = 0;
  Module().too_long_text.reset();
  try {
    Call(ProcName, Params, Results, result);
    if (result == kWrongValue && Params != nullptr) Module().too_long_text = TooLongText(*Params);
  } catch (...) {
    const platform::Failure failure = FailureBeingHandled();
    SetPendingFailure(failure.Number(), failure.Description());
  }
  return result;
}

}  // namespace ferrowind
