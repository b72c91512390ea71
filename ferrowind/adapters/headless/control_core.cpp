#include "ferrowind/adapters/headless/control_core.h"

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::headless {

void ControlCore::SetEnabled(bool enabled) {
  Record("SetEnabled", {enabled});
  enabled_ = enabled;
}

void ControlCore::SetVisible(bool visible) {
  Record("SetVisible", {visible});
  visible_ = visible;
}

void ControlCore::SetHeight(float height) {
  Record("SetHeight", {height});
  if (!(height >= 0)) throw platform::InvalidArgument();
  height_ = height;
}

void ControlCore::SetFocus() {
  Record("SetFocus");
  if (Usable()) TakeFocus();
}

bool ControlCore::Usable() const {
  return enabled_ && visible_ && (container_ == nullptr || container_->Usable());
}

void ControlCore::Record(const std::string& method, const std::vector<platform::Value>& arguments) {
  Log().Record(CallText(name_, method, arguments));
}

std::shared_ptr<void> ControlCore::BeginAction(const std::string& method,
                                               const std::vector<platform::Value>& arguments) {
  const std::string action = CallText(name_, method, arguments);
  host_.RequireInput(action);
  if (!Usable()) RaiseScriptError("The operator cannot do " + action + ": the control is disabled or hidden");
  Log().Record("operator." + action);
  return Keep();
}

}  // namespace ferrowind::headless
