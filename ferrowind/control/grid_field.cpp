#include "ferrowind/control/grid_field.h"

#include <utility>

#include "ferrowind/control/component_error.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind {

void GridField::SetVisible(bool visible) {
  visible_ = visible;
  changed_.Emit();
}

void GridField::SetCaption(const std::string& caption) {
  caption_ = caption;
  changed_.Emit();
}

void GridField::SetLocalName(const std::string& local_name) {
  RequireNotConstant();
  local_name_ = local_name;
}

void GridField::SetFunction(CellFunction function) {
  RequireNotConstant();
  function_ = std::move(function);
  changed_.Emit();
}

void GridField::RequireNotConstant() const {
  if (is_const_) throw platform::Failure(kComponentError, "It's constant field");
}

std::int32_t GridField::Index() const {
  std::string local_name = local_name_;
  std::int32_t index = 0;
  get_index_.Emit(local_name, index);
  return index;
}

platform::Subscription GridField::OnGetIndex(GetIndexHandler handler) {
  return get_index_.Subscribe(std::move(handler));
}

platform::Subscription GridField::OnChange(std::function<void()> handler) {
  return changed_.Subscribe(std::move(handler));
}

}  // namespace ferrowind
