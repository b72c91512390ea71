#include "host/admin/plan_remarks.h"

#include <ostream>
#include <string>

namespace ferrowind::host {

void WriteRemarks(const planning::YearPreparation& preparation, almanac::ExceptionHandling exceptions,
                  std::ostream& out) {
  const std::string name = preparation.Name();
  for (const std::string& sentence : preparation.Plan().Incomplete()) {
    out << name << " cannot be planned in full. " << sentence << ".\n";
  }
  for (const std::string& obstacle : preparation.Compared().Obstacles(exceptions)) {
    out << name << " cannot be applied: " << obstacle << ".\n";
  }
}

}  // namespace ferrowind::host
