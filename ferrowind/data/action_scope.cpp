#include "ferrowind/data/action_scope.h"

#include "ferrowind/data/exec_proc.h"
#include "ferrowind/data/ignoring_failure.h"
#include "ferrowind/data/module_state.h"
#include "ferrowind/data/runtime_failure.h"

namespace ferrowind {

using platform::ActionKind;
using platform::ActionObserver;
using platform::ActionStep;
using platform::OperatorAction;

namespace {

/// Whatever becomes of it, the component goes its way.
template <typename Telling>
void Tell(ActionObserver* observer, const Telling& telling) {
  if (observer == nullptr) return;
  IgnoringFailure([&] { telling(*observer); });
}

OperatorAction Described(ActionKind kind, const ActionDescription& describe) {
  OperatorAction action;
  action.kind = kind;
  if (describe) IgnoringFailure([&] { describe(action); });
  return action;
}

ActionStep LastCall(const std::string& rule, std::int32_t return_value) {
  ActionStep step{.rule = rule, .return_value = return_value, .failure = {}};
  const ModuleState& module = Module();
  if (module.pending_failure_count != 0) {
    const FailureRecord& pending = module.pending_failures[0];
    step.failure.emplace(pending.number, pending.description);
  } else if (return_value != 0 && module.too_long_text) {
    step.failure.emplace(platform::failure_number::kInvalidArgument, module.too_long_text->InEnglish());
  }
  return step;
}

}  // namespace

ActionScope::ActionScope(ActionObserver* observer, ActionKind kind, const ActionDescription& describe)
    : observer_(observer) {
  Tell(observer_, [&](ActionObserver& told) { told.ActionBegan(Described(kind, describe)); });
}

ActionScope::~ActionScope() {
  Tell(observer_, [](ActionObserver& told) { told.ActionEnded(); });
}

QuestionScope::QuestionScope(ActionObserver* observer, ActionKind kind, const ActionDescription& describe)
    : observer_(observer) {
  Tell(observer_, [&](ActionObserver& told) { told.QuestionOpens(Described(kind, describe)); });
}

QuestionScope::~QuestionScope() {
  Tell(observer_, [](ActionObserver& told) { told.QuestionClosed(); });
}

void TellWrite(ActionObserver* observer, const std::string& rule, std::int32_t return_value) {
  Tell(observer, [&](ActionObserver& told) { told.WriteEnded(LastCall(rule, return_value)); });
}

void TellRead(ActionObserver* observer, std::int32_t return_value) {
  Tell(observer, [&](ActionObserver& told) { told.ReadEnded(LastCall({}, return_value)); });
}

void TellFailedWrite(ActionObserver* observer, const std::string& rule) {
  Tell(observer, [&](ActionObserver& told) { told.WriteEnded({rule, kCallFailed, FailureBeingHandled()}); });
}

void TellFailedRead(ActionObserver* observer) {
  Tell(observer, [](ActionObserver& told) { told.ReadEnded({{}, kCallFailed, FailureBeingHandled()}); });
}

void TellIncompleteRead(ActionObserver* observer, const std::string& what) {
  Tell(observer, [&](ActionObserver& told) {
    told.ReadEnded({{},
                    kCallFailed,
                    platform::Failure(platform::failure_number::kInvalidArgument,
                                      "The answer of the database lacks " + what)});
  });
}

void TellDaysReread(ActionObserver* observer, std::int32_t changed) {
  Tell(observer, [&](ActionObserver& told) { told.DaysReread(changed); });
}

}  // namespace ferrowind
