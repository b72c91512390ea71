#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "ferrowind/adapters/headless/call_log.h"
#include "ferrowind/adapters/headless/procedure_script.h"
#include "ferrowind/platform/database/command.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::headless {

/// The steps of a procedure call, at each of which a script can make it fail.
enum class CommandStep {
  kCreate,
  kSetType,
  kSetText,
  kSetConnection,
  kSetCursorLocation,
  kRefreshParameters,
  kSetParameter,
  kExecute,
  kParameterAt,
  kState,
  kClone,
  kNextRecordSet,
};

/// A procedure call that was executed.
struct ExecutedCall {
  std::string procedure;
  std::string connection_string;
  /// The parameters that were set, in that order, as the caller gave them.
  std::vector<std::pair<std::string, platform::Value>> parameters;

  /// The value given to the parameter of that exact name, "@" included, the last one of several; empty
  /// without one.
  [[nodiscard]] platform::Value Parameter(const std::string& name) const;
  [[nodiscard]] bool HasParameter(const std::string& name) const;
};

/// Commands that answer from a script and are recorded as "command.METHOD(...)", what they hand back as
/// "cursor.METHOD(...)".
class ScriptedCommandFactory : public platform::CommandFactory {
 public:
  /// `log` must outlive the factory and all that it made.
  explicit ScriptedCommandFactory(CallLog& log) : state_(std::make_shared<Script>(log)) {}

  [[nodiscard]] std::unique_ptr<platform::Command> CreateCommand() override;

  /// Adds an answer of a procedure, to be described through the result. Each execution uses up one answer;
  /// the last one is used again and again. A procedure without any answer is unknown: refreshing its
  /// parameters fails.
  ProcedureScript& Answer(const std::string& procedure);
  /// Forgets all answers of a procedure.
  void Forget(const std::string& procedure) { state_->answers.erase(procedure); }
  /// Makes that step fail with `failure`, once: the `nth` time from now that any command comes to it. Each
  /// plan counts for itself; of two for the same time, the later one fails the time after it.
  void FailAt(CommandStep step, const platform::Failure& failure, int nth = 1);

  /// The calls that were executed, a failing execution included.
  [[nodiscard]] const std::vector<ExecutedCall>& Calls() const { return state_->calls; }
  /// Those of one procedure.
  [[nodiscard]] std::vector<ExecutedCall> CallsOf(const std::string& procedure) const;

 private:
  class ScriptedCommand;
  class ScriptedCursor;
  struct PlannedFailure {
    CommandStep step;
    int calls_left;
    platform::Failure failure;
  };
  struct Script {
    explicit Script(CallLog& call_log) : log(call_log) {}
    /// Records the step and fails when that is planned.
    void Pass(CommandStep step, const std::string& call);

    CallLog& log;
    std::map<std::string, std::deque<ProcedureScript>> answers;
    std::vector<PlannedFailure> failures;
    std::vector<ExecutedCall> calls;
  };

  std::shared_ptr<Script> state_;
};

}  // namespace ferrowind::headless
