#include "host/admin/status_command.h"

#include "host/admin/database_content.h"

namespace ferrowind::host {
namespace {

using platform::RecordSet;
using platform::Value;
using Rows = std::vector<std::vector<Value>>;

std::shared_ptr<RecordSet> AboutDatabase(const content::DatabaseStatus& status) {
  const std::vector<std::string> fields = {"SchemaVersion", "Engine", "EngineVersion",
                                           "Currencies",    "Rules",  "RemovedRules",
                                           "Calendars",     "Days",   "HistoryEntries"};
  std::vector<Value> row = {status.schema_version,
                            status.engine,
                            status.engine_version,
                            status.currencies,
                            status.rules,
                            status.removed_rules,
                            status.calendars,
                            status.days,
                            status.history_entries ? Value(*status.history_entries) : Value()};
  return std::make_shared<RecordSet>(fields, Rows{std::move(row)});
}

std::shared_ptr<RecordSet> AboutYears(const content::DatabaseStatus& status) {
  Rows rows;
  for (const auto& [year, calendars] : status.calendars_by_year) rows.push_back({year, calendars});
  return std::make_shared<RecordSet>(std::vector<std::string>{"Year", "Calendars"}, std::move(rows));
}

}  // namespace

ExitStatus StatusCommand::Run(const platform::EngineRegistry& engines, std::ostream& out) const {
  const content::DatabaseStatus status = ReadStatus(engines, url);
  WriteRows({AboutDatabase(status), AboutYears(status)}, format, out);
  return ExitStatus::kDone;
}

}  // namespace ferrowind::host
