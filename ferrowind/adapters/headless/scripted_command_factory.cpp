#include "ferrowind/adapters/headless/scripted_command_factory.h"

#include <algorithm>
#include <iterator>

#include "ferrowind/platform/values/case_fold.h"

namespace ferrowind::headless {

using platform::Failure;
using platform::Value;
namespace failure_number = platform::failure_number;

Value ExecutedCall::Parameter(const std::string& name) const {
  const auto found = std::find_if(parameters.rbegin(), parameters.rend(),
                                  [&](const auto& parameter) { return parameter.first == name; });
  return found == parameters.rend() ? Value() : found->second;
}

bool ExecutedCall::HasParameter(const std::string& name) const {
  return std::any_of(parameters.begin(), parameters.end(),
                     [&](const auto& parameter) { return parameter.first == name; });
}

void ScriptedCommandFactory::Script::Pass(CommandStep step, const std::string& call) {
  log.Record(call);
  for (PlannedFailure& planned : failures) {
    if (planned.step == step) --planned.calls_left;
  }
  const auto due = std::find_if(failures.begin(), failures.end(), [&](const PlannedFailure& planned) {
    return planned.step == step && planned.calls_left <= 0;
  });
  if (due == failures.end()) return;
  const Failure failure = due->failure;
  failures.erase(due);
  throw failure;
}

class ScriptedCommandFactory::ScriptedCursor : public platform::ResultCursor {
 public:
  ScriptedCursor(std::shared_ptr<Script> state, ProcedureScript script, std::size_t position)
      : state_(std::move(state)), script_(std::move(script)), position_(position) {}

  [[nodiscard]] std::int32_t State() const override {
    state_->Pass(CommandStep::kState, CallText("cursor", "State"));
    return script_.IsClosed() ? platform::kStateClosed : platform::kStateOpen;
  }

  [[nodiscard]] std::shared_ptr<platform::RecordSet> CloneDetached(std::int32_t lock_type) override {
    state_->Pass(CommandStep::kClone, CallText("cursor", "CloneDetached", {lock_type}));
    if (lock_type != platform::kUnspecified) throw platform::InvalidArgument();
    return script_.RecordSets()[position_]->Clone();
  }

  [[nodiscard]] std::unique_ptr<platform::ResultCursor> NextRecordSet() override {
    state_->Pass(CommandStep::kNextRecordSet, CallText("cursor", "NextRecordSet"));
    if (position_ + 1 == script_.RecordSets().size()) return nullptr;
    return std::make_unique<ScriptedCursor>(state_, script_, position_ + 1);
  }

 private:
  std::shared_ptr<Script> state_;
  ProcedureScript script_;
  std::size_t position_;
};

class ScriptedCommandFactory::ScriptedCommand : public platform::Command {
 public:
  explicit ScriptedCommand(std::shared_ptr<Script> state) : state_(std::move(state)) {}

  void SetType(std::int32_t type) override {
    state_->Pass(CommandStep::kSetType, CallText("command", "SetType", {type}));
    if (type != platform::kStoredProcedureCommand) throw platform::InvalidArgument();
  }

  void SetText(const std::string& text) override {
    state_->Pass(CommandStep::kSetText, CallText("command", "SetText", {text}));
    call_.procedure = text;
  }

  void SetConnection(const std::string& connection_string) override {
    state_->Pass(CommandStep::kSetConnection, CallText("command", "SetConnection", {connection_string}));
    call_.connection_string = connection_string;
  }

  void SetCursorLocation(std::int32_t location) override {
    state_->Pass(CommandStep::kSetCursorLocation, CallText("command", "SetCursorLocation", {location}));
    if (location != platform::kClientSideCursor) throw platform::InvalidArgument();
  }

  void RefreshParameters() override {
    state_->Pass(CommandStep::kRefreshParameters, CallText("command", "RefreshParameters"));
    script_ = NextAnswer();
    return_value_ = {};
  }

  void SetParameter(const std::string& name, const Value& value) override {
    state_->Pass(CommandStep::kSetParameter, CallText("command", "SetParameter", {name, value}));
    const std::string folded = platform::FoldCase(name);
    const auto& parameters = script_.Parameters();
    const auto found = std::find_if(parameters.begin(), parameters.end(), [&](const auto& parameter) {
      return platform::FoldCase(parameter.name) == folded &&
             parameter.direction == platform::ParameterDirection::kInput;
    });
    if (found == parameters.end()) {
      throw Failure(failure_number::kUnknownField, call_.procedure + " has no parameter " + name);
    }
    static_cast<void>(platform::ConvertForParameter(*found, value));
    call_.parameters.emplace_back(name, value);
  }

  [[nodiscard]] std::unique_ptr<platform::ResultCursor> Execute(std::int32_t options) override {
    state_->calls.push_back(call_);
    state_->Pass(CommandStep::kExecute, CallText("command", "Execute", {options}));
    if (options != platform::kUnspecified) throw platform::InvalidArgument();
    auto& answers = state_->answers[call_.procedure];
    if (answers.size() > 1) answers.pop_front();
    return_value_ = script_.ReturnValue();
    if (script_.RecordSets().empty()) return nullptr;
    return std::make_unique<ScriptedCursor>(state_, script_, 0);
  }

  [[nodiscard]] Value ParameterAt(std::int32_t position) const override {
    state_->Pass(CommandStep::kParameterAt, CallText("command", "ParameterAt", {position}));
    if (position == 0) return return_value_;
    if (position < 0 || position >= static_cast<std::int32_t>(script_.Parameters().size())) {
      throw platform::SubscriptOutOfRange();
    }
    return call_.Parameter(script_.Parameters()[static_cast<std::size_t>(position)].name);
  }

 private:
  [[nodiscard]] ProcedureScript NextAnswer() const {
    const auto answers = state_->answers.find(call_.procedure);
    if (answers == state_->answers.end() || answers->second.empty()) {
      throw Failure(failure_number::kInvalidArgument, "There is no procedure " + call_.procedure);
    }
    return answers->second.front();
  }

  std::shared_ptr<Script> state_;
  ExecutedCall call_;
  ProcedureScript script_;
  Value return_value_;
};

std::unique_ptr<platform::Command> ScriptedCommandFactory::CreateCommand() {
  state_->Pass(CommandStep::kCreate, CallText("command", "Create"));
  return std::make_unique<ScriptedCommand>(state_);
}

ProcedureScript& ScriptedCommandFactory::Answer(const std::string& procedure) {
  return state_->answers[procedure].emplace_back();
}

void ScriptedCommandFactory::FailAt(CommandStep step, const Failure& failure, int nth) {
  state_->failures.push_back({step, nth, failure});
}

std::vector<ExecutedCall> ScriptedCommandFactory::CallsOf(const std::string& procedure) const {
  std::vector<ExecutedCall> calls;
  std::copy_if(state_->calls.begin(), state_->calls.end(), std::back_inserter(calls),
               [&](const ExecutedCall& call) { return call.procedure == procedure; });
  return calls;
}

}  // namespace ferrowind::headless
