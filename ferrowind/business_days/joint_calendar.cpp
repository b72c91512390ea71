#include "ferrowind/business_days/joint_calendar.h"

#include <algorithm>
#include <memory>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::business_days {

JointCalendar::JointCalendar(const std::vector<BusinessCalendar>& members)
    : BusinessDays([&]() -> std::shared_ptr<const Content> {
        if (members.empty()) {
          throw platform::Failure(platform::failure_number::kInvalidArgument,
                                  "A joint calendar needs at least one currency");
        }
        const auto& first = members.front().Shared();
        Content joint{first->name, first->days, {first}};
        for (const BusinessCalendar& member : members) {
          const auto& shared = member.Shared();
          if (std::ranges::find(joint.members, shared->name, &Content::name) != joint.members.end()) continue;
          joint.name += '+' + shared->name;
          joint.days = DayTable::Joined(joint.days, shared->days);
          joint.members.push_back(shared);
        }
        return std::make_shared<const Content>(std::move(joint));
      }()) {}

std::vector<BusinessCalendar> JointCalendar::Members() const {
  std::vector<BusinessCalendar> members;
  for (const auto& member : Shared()->members) members.push_back(BusinessCalendar(member));
  return members;
}

}  // namespace ferrowind::business_days
