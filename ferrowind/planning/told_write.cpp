#include "ferrowind/planning/told_write.h"

#include "ferrowind/data/action_scope.h"
#include "ferrowind/data/module_state.h"
#include "ferrowind/planning/database_call.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::planning {

void WriteTold(platform::ActionKind kind, const ToldSubject& subject,
               const std::function<std::int32_t()>& call) {
  platform::ActionObserver* const observer = AttachedPlatform().action_observer;
  const ActionScope action(observer, kind, [&](platform::OperatorAction& about) {
    about.currency = subject.currency;
    about.year = subject.year;
  });
  try {
    TellWrite(observer, {}, call());
  } catch (const Refusal& refusal) {
    TellWrite(observer, {}, refusal.ReturnValue());
    throw;
  } catch (const platform::Failure&) {
    TellFailedWrite(observer, {});
    throw;
  }
}

}  // namespace ferrowind::planning
