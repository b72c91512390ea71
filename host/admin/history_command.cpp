#include "host/admin/history_command.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <utility>
#include <vector>

#include "ferrowind/planning/history_store.h"
#include "ferrowind/planning/history_words.h"

#include "host/admin/database_content.h"
#include "host/admin/english_day.h"
#include "host/admin/history_arguments.h"

namespace ferrowind::host {
namespace {

using planning::HistoryEntry;
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

/// The oldest first.
std::vector<HistoryEntry> ReadEntries(const planning::HistoryFilter& filter, const std::string& since) {
  constexpr std::int32_t kPage = 5000;
  std::vector<HistoryEntry> entries;
  std::optional<std::int32_t> before;
  for (bool has_older = true; has_older;) {
    planning::HistoryPage page = planning::LoadHistory(filter, before, kPage);
    has_older = page.has_older;
    if (has_older) before = page.entries.back().id;
    for (HistoryEntry& entry : page.entries) {
      if (entry.moment >= since) entries.push_back(std::move(entry));
    }
  }
  std::reverse(entries.begin(), entries.end());
  return entries;
}

/// Finds entries among those that were read, and else in the database.
planning::EntryLookup LookupIn(const std::vector<HistoryEntry>& entries) {
  return [&entries](std::int32_t id) -> std::optional<HistoryEntry> {
    const auto known =
        std::lower_bound(entries.begin(), entries.end(), id,
                         [](const HistoryEntry& entry, std::int32_t wanted) { return entry.id < wanted; });
    if (known != entries.end() && known->id == id) return *known;
    return planning::FindEntry(id);
  };
}

std::shared_ptr<RecordSet> RowsOf(const std::vector<HistoryEntry>& entries,
                                  const planning::CurrencyList& currencies, OutputFormat format) {
  const planning::HistoryWords words(currencies, LookupIn(entries), EnglishDay);
  std::vector<std::vector<Value>> rows;
  for (const HistoryEntry& entry : entries) {
    const planning::Currency* const currency = entry.currency ? currencies.Find(*entry.currency) : nullptr;
    rows.push_back({entry.id, entry.moment, entry.user, entry.procedure,
                    currency != nullptr ? Value(currency->code) : Value(),
                    entry.year ? Value(*entry.year) : Value(),
                    // People have little room.
                    format == OutputFormat::kTable ? AsArguments(entry.parameters) : entry.parameters,
                    // Nothing else has an entry.
                    std::int32_t{0}, entry.rows_changed, words.Tell(entry).Sentence()});
  }
  return std::make_shared<RecordSet>(
      std::vector<std::string>{"EntryID", "Moment", "UserName", "ProcedureName", "Ccy", "Year1", "Parameters",
                               "ReturnValue", "RowsChanged", "What"},
      std::move(rows));
}

}  // namespace

ExitStatus HistoryCommand::Run(const platform::EngineRegistry& engines, std::ostream& out) const {
  const std::string since_moment = since ? ReadMoment(*since) : "";
  const auto wanted = calendar ? std::optional(ReadCalendar(*calendar)) : std::nullopt;
  std::shared_ptr<RecordSet> rows;
  RunWithCalendars(engines, url, [&] {
    const auto currencies = planning::CurrencyList::Load();
    planning::HistoryFilter filter;
    if (wanted) filter = {currencies.Named(wanted->currency).id, wanted->year};
    rows = RowsOf(ReadEntries(filter, since_moment), currencies, format);
  });
  WriteRows({rows}, format, out);
  return ExitStatus::kDone;
}

}  // namespace ferrowind::host
