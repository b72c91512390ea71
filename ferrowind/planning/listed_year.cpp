#include "ferrowind/planning/listed_year.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <optional>
#include <utility>

#include "ferrowind/almanac/planner.h"
#include "ferrowind/exchange/list_book.h"
#include "ferrowind/planning/calendar_store.h"
#include "ferrowind/planning/history_store.h"
#include "ferrowind/planning/in_words.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::planning {
namespace {

using almanac::MarkedDay;
using almanac::RuleKind;
using exchange::ListedKind;

[[noreturn]] void Refuse(const std::string& why) {
  throw platform::Failure(platform::failure_number::kInvalidArgument, why);
}

ListedKind KindOf(const MarkedDay& day) {
  if (!day.IsClosed()) return ListedKind::kWorkingDay;
  return day.kind == RuleKind::kWeekday ? ListedKind::kWeekend : ListedKind::kHoliday;
}

/// `there` is ordered.
void RequireAll(const std::vector<Currency>& currencies, const exchange::WantedYears& years,
                const std::vector<CalendarKey>& there) {
  for (const Currency& currency : currencies) {
    for (int year = years.first; year <= years.last; ++year) {
      if (std::binary_search(there.begin(), there.end(), CalendarKey(currency.id, year))) continue;
      Refuse(InWords("There is no calendar %1 %2, so nothing is known of its days",
                     {UnmistakableCode(currency), std::to_string(year)}));
    }
  }
}

using ContentByCalendar = std::map<CalendarKey, almanac::CalendarContent>;

/// Of those that have marked days. Many years at once, since a call for each calendar would wait as often for
/// a server that is far away; and not all, since an answer is in memory as a whole.
ContentByCalendar LoadContents(const std::vector<Currency>& currencies, const exchange::WantedYears& years) {
  constexpr int kYearsAtOnce = 10;
  ContentByCalendar contents;
  for (int first = years.first; first <= years.last; first += kYearsAtOnce) {
    for (auto& [key, content] : LoadMarkedDays(first, std::min(first + kYearsAtOnce - 1, years.last))) {
      const bool is_wanted =
          std::any_of(currencies.begin(), currencies.end(),
                      [id = key.first](const Currency& currency) { return currency.id == id; });
      if (is_wanted) contents.emplace(key, std::move(content));
    }
  }
  return contents;
}

void AppendDays(exchange::DayList& list, const Currency& currency, const almanac::CalendarContent& content,
                const almanac::RuleDirectory& rules, bool with_all) {
  const platform::Date new_year(content.year, 1, 1);
  for (const MarkedDay& day : content.days) {
    const ListedKind kind = KindOf(day);
    if (kind != ListedKind::kHoliday && !with_all) continue;
    const almanac::KnownRule* const rule = rules.Find(day.rule);
    std::string name = rule != nullptr ? rule->name : "Rule " + std::to_string(day.rule);
    // The reason of an exception is its name.
    if (kind == ListedKind::kWorkingDay && !day.comment.empty()) name = day.comment;
    list.days.push_back({new_year.AddDays(day.day_of_year - 1), std::move(name), kind, currency.code});
  }
}

}  // namespace

ListedYear PrepareListed(const YearPlanner& planner, const Currency& currency, const exchange::YearList& list,
                         const std::string& source, bool takes_names) {
  if (!currency.IsLiveIn(list.year)) {
    Refuse(InWords(platform::Phrase::Of("%1, so it has no calendar of %2",
                                        {EndOfMoney(currency), std::to_string(list.year)})));
  }
  const std::optional<almanac::YearPlan> planned = planner.PlanIfKnown(currency, list.year);
  StoredCalendar calendar = LoadCalendar(currency, list.year);
  exchange::ListBook listed =
      BookOf(list, source, {calendar.content, planner.Rules(), planned ? &*planned : nullptr, takes_names});
  return {std::make_unique<YearPreparation>(currency, almanac::PlanYear(listed.book, list.year, {}),
                                            std::move(calendar), planner.Rules(), almanac::PlanSource::kList),
          listed.other_names, std::move(listed.remarks)};
}

exchange::DayList ListCalendars(const std::vector<Currency>& currencies, const exchange::WantedYears& years,
                                bool with_all) {
  const StoredRules stored = LoadRules();
  RequireAll(currencies, years, stored.calendars);
  const almanac::RuleDirectory rules(stored.rules);
  const ContentByCalendar contents = LoadContents(currencies, years);
  exchange::DayList list;
  for (const Currency& currency : currencies) {
    for (int year = years.first; year <= years.last; ++year) {
      const auto content = contents.find({currency.id, year});
      // Of a calendar without a marked day there is none.
      if (content != contents.end()) AppendDays(list, currency, content->second, rules, with_all);
    }
  }
  return list;
}

exchange::Revision RevisionFor(exchange::ListFormat format) {
  if (format != exchange::ListFormat::kICalendar) return {};
  const HistoryPage page = LoadHistory({}, std::nullopt, 1);
  exchange::Revision revision;
  if (page.entries.empty()) return revision;
  revision.number = page.entries.front().id;
  // Of "2026-11-22T20:15:30.123Z" all but the signs between the numbers, and the fraction.
  const std::string& moment = page.entries.front().moment;
  std::string digits;
  std::copy_if(moment.begin(), std::find(moment.begin(), moment.end(), '.'), std::back_inserter(digits),
               [](char character) { return character != '-' && character != ':' && character != 'Z'; });
  revision.moment = digits + 'Z';
  return revision;
}

}  // namespace ferrowind::planning
