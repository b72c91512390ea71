#include "ferrowind/adapters/content/database_status.h"

#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::content {
namespace {

using platform::ToInt32;
using platform::Value;

/// Counts come in whatever width the engine counts in.
std::int64_t Count(const Value& value) {
  const auto* const wide = value.If<std::int64_t>();
  return wide != nullptr ? *wide : ToInt32(value);
}

}  // namespace

std::optional<std::string> OtherSchemaVersion(const std::string& name, std::int64_t found,
                                              std::int64_t expected) {
  if (found == expected) return std::nullopt;
  return name + " has the schema version " + std::to_string(found) + "; this program's is " +
         std::to_string(expected) + ". " +
         (found < expected ? "Bring it there with \"ferrowindctl upgrade\" first"
                           : "It takes a newer version of this program");
}

void RequireSchemaVersion(const std::string& name, std::int64_t found, std::int64_t expected) {
  if (const auto other = OtherSchemaVersion(name, found, expected)) {
    throw platform::Failure(platform::failure_number::kInvalidArgument, *other);
  }
}

void CountContent(const std::function<std::shared_ptr<platform::RecordSet>(const std::string& query)>& ask,
                  bool has_history, DatabaseStatus& status) {
  const auto counts =
      ask("SELECT (SELECT count(*) FROM DicCcy) AS currencies, (SELECT count(*) FROM CldHoliday) AS rules,"
          " (SELECT count(*) FROM CldHoliday WHERE Del = 2) AS removed_rules,"
          " (SELECT count(*) FROM CldCalendar) AS calendars, (SELECT count(*) FROM CldDay) AS days");
  status.currencies = Count((*counts)["currencies"]);
  status.rules = Count((*counts)["rules"]);
  status.removed_rules = Count((*counts)["removed_rules"]);
  status.calendars = Count((*counts)["calendars"]);
  status.days = Count((*counts)["days"]);
  if (has_history) {
    status.history_entries = Count((*ask("SELECT count(*) AS entries FROM CldHistory"))["entries"]);
  }
  const auto years =
      ask("SELECT Year1 AS year, count(*) AS calendars FROM CldCalendar GROUP BY Year1 ORDER BY Year1");
  for (; !years->Eof(); years->MoveNext()) {
    status.calendars_by_year.emplace_back(ToInt32((*years)["year"]), Count((*years)["calendars"]));
  }
}

}  // namespace ferrowind::content
