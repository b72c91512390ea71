#include "ferrowind/almanac/plan_action.h"

namespace ferrowind::almanac {

//: said
std::string_view TextOf(PlanAction action) {
  switch (action) {
    case PlanAction::kKeep:
      return "keep";
    case PlanAction::kAdd:
      return "add";
    case PlanAction::kReplace:
      return "replace";
    case PlanAction::kRemove:
      return "remove";
    case PlanAction::kException:
      return "exception";
  }
  return {};
}

}  // namespace ferrowind::almanac
