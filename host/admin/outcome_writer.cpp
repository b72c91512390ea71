#include "host/admin/outcome_writer.h"

namespace ferrowind::host {

void WriteOutcome(const ProcedureOutcome& outcome, OutputFormat format, std::ostream& out) {
  switch (format) {
    case OutputFormat::kTable:
      return WriteTable(outcome, out);
    case OutputFormat::kJson:
      return WriteJson(outcome, out);
    case OutputFormat::kCsv:
      return WriteCsv(outcome, out);
  }
}

}  // namespace ferrowind::host
