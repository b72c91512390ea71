#include "ferrowind/control/grid_field.h"

#include <utility>

#include "ferrowind/control/component_error.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind {

void GridField::SetLocalName(const std::string& local_name) {
  if (is_const_) throw platform::Failure(kComponentError, "It's constant field");
  local_name_ = local_name;
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

}  // namespace ferrowind
