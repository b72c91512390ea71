#include "ferrowind/planning/listed_year.h"

#include <algorithm>
#include <iterator>
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

}  // namespace

ListedYear PrepareListed(const YearPlanner& planner, const Currency& currency, const exchange::YearList& list,
                         const std::string& source, bool takes_names) {
  if (!currency.IsLiveIn(list.year)) {
    Refuse(InWords(platform::Phrase::Of("%1, so it has no calendar of %2",
                                        {EndOfMoney(currency), std::to_string(list.year)})));
  }
  std::optional<almanac::YearPlan> planned;
  const almanac::Planner* const own = planner.PlannerOf(currency);
  if (own != nullptr && own->Reaches(list.year)) planned = own->Plan(list.year);
  StoredCalendar calendar = LoadCalendar(currency, list.year);
  exchange::ListBook listed =
      BookOf(list, source, {calendar.content, planner.Rules(), planned ? &*planned : nullptr, takes_names});
  return {std::make_unique<YearPreparation>(currency, almanac::PlanYear(listed.book, list.year, {}),
                                            std::move(calendar), planner.Rules()),
          listed.other_names, std::move(listed.remarks)};
}

exchange::DayList ListCalendar(const Currency& currency, int year, const almanac::RuleDirectory& rules,
                               bool with_all) {
  const auto content = LoadDays(currency, year);
  if (!content) {
    Refuse(InWords("There is no calendar %1 %2, so nothing is known of its days",
                   {currency.code, std::to_string(year)}));
  }
  const platform::Date new_year(year, 1, 1);
  exchange::DayList list;
  for (const MarkedDay& day : content->days) {
    const ListedKind kind = KindOf(day);
    if (kind != ListedKind::kHoliday && !with_all) continue;
    const almanac::KnownRule* const rule = rules.Find(day.rule);
    std::string name = rule != nullptr ? rule->name : "Rule " + std::to_string(day.rule);
    // The reason of an exception is its name.
    if (kind == ListedKind::kWorkingDay && !day.comment.empty()) name = day.comment;
    list.days.push_back({new_year.AddDays(day.day_of_year - 1), std::move(name), kind, currency.code});
  }
  return list;
}

exchange::DayList ListCalendars(const std::vector<Currency>& currencies, const exchange::WantedYears& years,
                                bool with_all) {
  const almanac::RuleDirectory rules(LoadRules().rules);
  exchange::DayList list;
  for (const Currency& currency : currencies) {
    for (int year = years.first; year <= years.last; ++year) {
      exchange::DayList days = ListCalendar(currency, year, rules, with_all);
      list.days.insert(list.days.end(), std::make_move_iterator(days.days.begin()),
                       std::make_move_iterator(days.days.end()));
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
