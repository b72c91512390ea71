#include "ferrowind/platform/toolkit/form.h"

namespace ferrowind::platform {

Failure NoSuchControl(const Form& form, const std::string& name) {
  return {failure_number::kElementNotFound, "The form " + form.Name() + " has no such control as " + name};
}

}  // namespace ferrowind::platform
