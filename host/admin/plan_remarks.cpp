#include "host/admin/plan_remarks.h"

#include <ostream>

#include "ferrowind/planning/plan_words.h"

#include "host/admin/text_escapes.h"

namespace ferrowind::host {

void WriteIncomplete(const planning::YearPreparation& preparation, std::ostream& out) {
  for (const std::string& sentence : planning::Incomplete(preparation)) out << OneLine(sentence) << '\n';
}

void WriteRemarks(const planning::YearPreparation& preparation, almanac::ExceptionHandling exceptions,
                  std::ostream& out) {
  WriteIncomplete(preparation, out);
  for (const platform::Phrase& obstacle : preparation.Compared().Obstacles(exceptions)) {
    out << OneLine(preparation.Name() + " cannot be applied: " + obstacle.InEnglish()) << ".\n";
  }
}

}  // namespace ferrowind::host
