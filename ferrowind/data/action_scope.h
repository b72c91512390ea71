#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "ferrowind/platform/services/action_observer.h"

namespace ferrowind {

/// Fills in what an action is about. Is called only when there is an observer; what it cannot find out it
/// leaves empty, and its failure is ignored.
using ActionDescription = std::function<void(platform::OperatorAction& action)>;

/// An action of the operator, told to the host's observer from the construction to the destruction. Does
/// nothing for a null `observer`, which must outlive the scope otherwise.
///
/// An action that begins in a dialog and ends only when the window behind has read again belongs to the
/// dialog, which its opener drops after that.
class ActionScope {
 public:
  ActionScope(platform::ActionObserver* observer, platform::ActionKind kind,
              const ActionDescription& describe = {});
  ~ActionScope();
  ActionScope(const ActionScope&) = delete;
  ActionScope& operator=(const ActionScope&) = delete;

 private:
  platform::ActionObserver* observer_;
};

/// A question that is open from the construction to the destruction; as `ActionScope`.
class QuestionScope {
 public:
  QuestionScope(platform::ActionObserver* observer, platform::ActionKind kind,
                const ActionDescription& describe);
  ~QuestionScope();
  QuestionScope(const QuestionScope&) = delete;
  QuestionScope& operator=(const QuestionScope&) = delete;

 private:
  platform::ActionObserver* observer_;
};

/// Tells how the call of the gateway ended that returned `return_value` just now. `rule` as in
/// `platform::ActionStep`. Nothing is told to a null `observer`.
void TellWrite(platform::ActionObserver* observer, const std::string& rule, std::int32_t return_value);
void TellRead(platform::ActionObserver* observer, std::int32_t return_value);

/// Tell of a use that failed outside of the gateway with the exception that is being handled. Call them only
/// inside a catch block.
void TellFailedWrite(platform::ActionObserver* observer, const std::string& rule);
void TellFailedRead(platform::ActionObserver* observer);
/// Tells of an answer that lacks what was asked for.
void TellIncompleteRead(platform::ActionObserver* observer, const std::string& what);

void TellDaysReread(platform::ActionObserver* observer, std::int32_t changed);

}  // namespace ferrowind
