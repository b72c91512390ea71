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

std::vector<std::shared_ptr<RecordSet>> RecordSets(platform::Connection& connection,
                                                   const std::string& procedure,
                                                   const std::vector<Value>& inputs, std::size_t least) {
  platform::CallOutcome outcome = connection.Call(procedure, inputs);
  if (outcome.return_value != 0 || outcome.record_sets.size() < least) {
    throw platform::Failure(platform::failure_number::kInvalidArgument,
                            procedure + " gave no rows: it returned " + std::to_string(outcome.return_value));
  }
  return std::move(outcome.record_sets);
}

}  // namespace

struct DayLoader::Content {
  Years years;
  business_days::MarketConventions conventions;
  DayNames names;
  std::map<std::int32_t, std::string> codes;
};

DayLoader::DayLoader(const platform::EngineRegistry& engines, std::string url, Names names)
    : engines_(engines), url_(std::move(url)), names_(names) {
  Content content = Read();
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
  Content content = Read();
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
  const auto before = Current();
  changes.has_other_conventions = content.conventions != before->conventions;
  if (changes.Any() || content.names != before->names) Take(std::move(content), changes);
  return changes;
}

DayLoader::Content DayLoader::Read() const {
  const auto connection = engines_.EngineFor(url_).Connect(url_);
  Content content;
  const auto closed = RecordSets(*connection, "CldGetClosedDays", {kFirstYear, kLastYear}, 2);
  const auto& rows = closed[0];
  const std::size_t year = rows->FieldNamed("Year1");
  const std::size_t days = rows->FieldNamed("Days");
  const std::size_t code = rows->FieldNamed("Ccy");
  const std::size_t number = rows->FieldNamed("ID1");
  const std::size_t rules = rows->FieldNamed("Rules");
  const std::size_t is_prepared = rows->FieldNamed("IsPrepared");
  for (std::size_t i = 0; i < rows->RowCount(); ++i) {
    const RecordSet::Bookmark row = rows->BookmarkAt(i);
    content.codes.emplace(platform::ToInt32(rows->Cell(row, number)),
                          platform::ToText(rows->Cell(row, code)));
    auto& years = content.years[platform::ToText(rows->Cell(row, code))];
    if (platform::ToInt32(rows->Cell(row, is_prepared)) == 0) continue;
    years.push_back({business_days::CalendarYear(platform::ToInt32(rows->Cell(row, year))),
                     platform::ToText(rows->Cell(row, days))});
    if (names_ == Names::kLeftOut) continue;
    content.names.AddYear(platform::ToText(rows->Cell(row, code)), static_cast<int>(years.back().year),
                          years.back().days, platform::ToText(rows->Cell(row, rules)));
  }
  if (names_ == Names::kLoaded) {
    RecordSet& named = *closed[1];
    for (named.MoveFirst(); !named.Eof(); named.MoveNext()) {
      content.names.AddRule(platform::ToInt32(named["ID2"]), platform::ToText(named["Name1"]));
    }
  }
  content.conventions = DeliveredConventions();
  content.conventions.Amend(ConventionsIn(*RecordSets(*connection, "CldGetConventions", {}, 1)[0]));
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
      LoadedDays{business_days::CalendarSet(calendars), std::move(content.conventions),
                 std::move(content.names), std::move(content.codes)});
  years_ = std::move(content.years);
  const std::lock_guard lock(taking_);
  current_ = std::move(loaded);
}

}  // namespace ferrowind::loading
