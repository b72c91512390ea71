#include "host/admin/history_command.h"

#include <nlohmann/json.hpp>
#include <utility>
#include <vector>

#include "ferrowind/adapters/postgres/engine.h"
#include "ferrowind/adapters/postgres/history_query.h"
#include "ferrowind/adapters/sqlite/engine.h"
#include "ferrowind/adapters/sqlite/history_query.h"

#include "host/admin/history_arguments.h"

namespace ferrowind::host {
namespace {

using platform::RecordSet;
using platform::Value;

/// The values of a call as "ferrowindctl call" takes them from a shell, without those that were not given.
std::string AsArguments(const std::string& parameters) {
  const auto object = nlohmann::ordered_json::parse(parameters, nullptr, false);
  // Nobody but a program that went around the procedures writes anything else; it is shown as it is.
  if (!object.is_object()) return parameters;
  std::string arguments;
  for (const auto& [name, value] : object.items()) {
    if (value.is_null()) continue;
    if (!arguments.empty()) arguments += ' ';
    const std::string argument = name + "=" + (value.is_string() ? value.get<std::string>() : value.dump());
    const bool has_blank = argument.find(' ') != std::string::npos;
    arguments += has_blank ? '"' + argument + '"' : argument;
  }
  return arguments;
}

/// For people, who have little room.
std::shared_ptr<RecordSet> ForTable(const RecordSet& entries) {
  const std::size_t parameters = entries.FieldNamed("Parameters");
  std::vector<std::string> fields;
  for (std::size_t field = 0; field < entries.FieldCount(); ++field)
    fields.push_back(entries.FieldName(field));
  std::vector<std::vector<Value>> rows;
  for (std::size_t i = 0; i < entries.RowCount(); ++i) {
    std::vector<Value> row;
    for (std::size_t field = 0; field < entries.FieldCount(); ++field) {
      row.push_back(entries.Cell(entries.BookmarkAt(i), field));
    }
    if (const auto* const text = row[parameters].If<std::string>()) row[parameters] = AsArguments(*text);
    rows.push_back(std::move(row));
  }
  return std::make_shared<RecordSet>(std::move(fields), std::move(rows));
}

}  // namespace

ExitStatus HistoryCommand::Run(const platform::EngineRegistry& engines, std::ostream& out) const {
  content::HistoryFilter filter;
  if (since) filter.since = ReadMoment(*since);
  if (calendar) filter.calendar = ReadCalendar(*calendar);
  // Says that there is no such engine, where an adapter can only say that it is not its own.
  (void)engines.EngineFor(url);
  const auto entries = postgres::IsConnectionString(url) ? postgres::ReadHistory(url, filter)
                                                         : sqlite::ReadHistory(sqlite::PathIn(url), filter);
  WriteRows({format == OutputFormat::kTable ? ForTable(*entries) : entries}, format, out);
  return ExitStatus::kDone;
}

}  // namespace ferrowind::host
