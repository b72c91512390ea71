#include "host/admin/status_command.h"

#include <utility>

#include "ferrowind/platform/values/failure.h"

#include "host/admin/calendar_warnings.h"
#include "host/admin/database_content.h"
#include "host/admin/text_escapes.h"

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

std::shared_ptr<RecordSet> AboutConnections(const content::DatabaseStatus& status) {
  Rows rows;
  for (const content::ConnectionShare& share : status.connections) {
    rows.push_back({share.whose, share.connections, share.limit ? Value(*share.limit) : Value(),
                    share.without_limit.empty() ? Value() : Value(share.without_limit)});
  }
  return std::make_shared<RecordSet>(
      std::vector<std::string>{"Logins", "Connections", "Limit", "WithoutLimit"}, std::move(rows));
}

CalendarWarnings WarningsOf(const platform::EngineRegistry& engines, const std::string& url) {
  try {
    return {engines, url};
  } catch (const platform::Failure& failure) {
    // A database of an older schema, of which the rest is told all the same.
    return CalendarWarnings(failure.Description());
  }
}

}  // namespace

ExitStatus StatusCommand::Run(const platform::EngineRegistry& engines, std::ostream& out) const {
  const content::DatabaseStatus status = ReadStatus(engines, url);
  const CalendarWarnings warnings = WarningsOf(engines, url);
  RecordSets tables = {AboutDatabase(status), AboutYears(status)};
  if (format != OutputFormat::kTable) tables.push_back(warnings.Rows());
  if (!status.connections.empty()) tables.push_back(AboutConnections(status));
  WriteRows(tables, format, out);
  if (format != OutputFormat::kTable) return ExitStatus::kDone;
  const char* gap = "\n";
  for (const std::string& warning : warnings.Sentences()) {
    out << std::exchange(gap, "") << "Warning: " << OneLine(warning) << ".\n";
  }
  return ExitStatus::kDone;
}

}  // namespace ferrowind::host
