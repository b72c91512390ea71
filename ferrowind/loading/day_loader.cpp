#include "ferrowind/loading/day_loader.h"

#include <chrono>
#include <utility>

#include "ferrowind/business_days/business_calendar.h"
#include "ferrowind/loading/convention_rows.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::loading {
namespace {

using business_days::BusinessCalendar;
using business_days::PreparedYear;
using platform::RecordSet;
using platform::Value;

/// All that calendars can be of.
constexpr std::int32_t kFirstYear = 1900;
constexpr std::int32_t kLastYear = 3000;

std::shared_ptr<RecordSet> Rows(platform::Connection& connection, const std::string& procedure,
                                const std::vector<Value>& inputs) {
  platform::CallOutcome outcome = connection.Call(procedure, inputs);
  if (outcome.return_value != 0 || outcome.record_sets.empty()) {
    throw platform::Failure(platform::failure_number::kInvalidArgument,
                            procedure + " gave no rows: it returned " + std::to_string(outcome.return_value));
  }
  return std::move(outcome.record_sets.front());
}

}  // namespace

struct DayLoader::Content {
  Years years;
  business_days::MarketConventions conventions;
};

DayLoader::DayLoader(const platform::EngineRegistry& engines, std::string url)
    : engines_(engines), url_(std::move(url)) {
  Content content = Read(engines_, url_);
  DayChanges changes;
  for (const auto& [code, years] : content.years) changes.added.push_back(code);
  Take(std::move(content), changes);
}

std::shared_ptr<const LoadedDays> DayLoader::Current() const {
  const std::lock_guard lock(taking_);
  return current_;
}

DayChanges DayLoader::Reload() {
  const std::lock_guard lock(reloading_);
  Content content = Read(engines_, url_);
  DayChanges changes;
  for (const auto& [code, years] : content.years) {
    const auto before = years_.find(code);
    if (before == years_.end()) {
      changes.added.push_back(code);
    } else if (before->second != years) {
      changes.changed.push_back(code);
    }
  }
  for (const auto& [code, years] : years_) {
    if (!content.years.contains(code)) changes.removed.push_back(code);
  }
  changes.has_other_conventions = content.conventions != Current()->conventions;
  if (changes.Any()) Take(std::move(content), changes);
  return changes;
}

DayLoader::Content DayLoader::Read(const platform::EngineRegistry& engines, const std::string& url) {
  const auto connection = engines.EngineFor(url).Connect(url);
  Content content;
  const auto rows = Rows(*connection, "CldGetClosedDays", {kFirstYear, kLastYear});
  const std::size_t year = rows->FieldNamed("Year1");
  const std::size_t days = rows->FieldNamed("Days");
  const std::size_t code = rows->FieldNamed("Ccy");
  const std::size_t is_prepared = rows->FieldNamed("IsPrepared");
  for (std::size_t i = 0; i < rows->RowCount(); ++i) {
    const RecordSet::Bookmark row = rows->BookmarkAt(i);
    auto& years = content.years[platform::ToText(rows->Cell(row, code))];
    if (platform::ToInt32(rows->Cell(row, is_prepared)) == 0) continue;
    years.push_back({std::chrono::year(platform::ToInt32(rows->Cell(row, year))),
                     platform::ToText(rows->Cell(row, days))});
  }
  content.conventions = DeliveredConventions();
  content.conventions.Amend(ConventionsIn(*Rows(*connection, "CldGetConventions", {})));
  return content;
}

/// Only what is new is made: of the rest the old calendars are taken.
void DayLoader::Take(Content content, const DayChanges& changes) {
  std::map<std::string, BusinessCalendar, std::less<>> made;
  for (const auto* codes : {&changes.added, &changes.changed}) {
    for (const std::string& code : *codes) {
      made.emplace(code, BusinessCalendar(code, content.years.at(code)));
    }
  }
  const auto before = Current();
  std::vector<BusinessCalendar> calendars;
  calendars.reserve(content.years.size());
  for (const auto& [code, years] : content.years) {
    const auto found = made.find(code);
    calendars.push_back(found != made.end() ? found->second : before->calendars.Of(code));
  }
  auto loaded = std::make_shared<const LoadedDays>(
      LoadedDays{business_days::CalendarSet(calendars), std::move(content.conventions)});
  years_ = std::move(content.years);
  const std::lock_guard lock(taking_);
  current_ = std::move(loaded);
}

}  // namespace ferrowind::loading
