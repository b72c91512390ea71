#include "host/admin/outcome_writer.h"

#include "host/admin/guarded_stream.h"

namespace ferrowind::host {

void WriteOutcome(const ProcedureOutcome& outcome, OutputFormat format, std::ostream& out) {
  switch (format) {
    case OutputFormat::kTable:
      return WriteTable(outcome, out);
    case OutputFormat::kJson:
      return WriteJson(outcome, out);
    case OutputFormat::kCsv:
      return WriteCsv(outcome, ForPrograms(out));
  }
}

void WriteRows(const RecordSets& record_sets, OutputFormat format, std::ostream& out) {
  switch (format) {
    case OutputFormat::kTable:
      return WriteTableRows(record_sets, out);
    case OutputFormat::kJson:
      return WriteJsonRows(record_sets, out);
    case OutputFormat::kCsv:
      return WriteCsvRows(record_sets, ForPrograms(out));
  }
}

void WriteList(const platform::RecordSet& rows, OutputFormat format, std::ostream& out) {
  switch (format) {
    case OutputFormat::kTable:
      return WriteTableList(rows, out);
    case OutputFormat::kJson:
      return WriteJsonList(rows, out);
    case OutputFormat::kCsv:
      return WriteCsvList(rows, ForPrograms(out));
  }
}

}  // namespace ferrowind::host
