#include "host/admin/plan_remarks.h"

#include <algorithm>
#include <ostream>

#include "host/admin/counted.h"

namespace ferrowind::host {

void WriteIncomplete(const planning::YearPreparation& preparation, std::ostream& out) {
  for (const std::string& sentence : preparation.Plan().Incomplete()) {
    out << preparation.Name() << " cannot be planned in full. " << sentence << ".\n";
  }
}

void WriteRemarks(const planning::YearPreparation& preparation, almanac::ExceptionHandling exceptions,
                  std::ostream& out) {
  WriteIncomplete(preparation, out);
  for (const std::string& obstacle : preparation.Compared().Obstacles(exceptions)) {
    out << preparation.Name() << " cannot be applied: " << obstacle << ".\n";
  }
}

std::size_t KeptExceptions(const almanac::Comparison& comparison, almanac::ExceptionHandling exceptions) {
  const auto& days = comparison.Days();
  return static_cast<std::size_t>(
      std::count_if(days.begin(), days.end(), [&](const almanac::ComparedDay& day) {
        return day.action == almanac::PlanAction::kException && !day.Changes(exceptions);
      }));
}

std::string CountedExceptions(std::size_t count) {
  return Counted(count, "working day by exception", "working days by exception");
}

std::string ButForExceptions(std::size_t kept) {
  return kept == 0 ? std::string() : " but for " + CountedExceptions(kept);
}

}  // namespace ferrowind::host
