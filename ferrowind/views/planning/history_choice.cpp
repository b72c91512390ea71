#include "ferrowind/views/planning/history_choice.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>

#include "ferrowind/data/said.h"
#include "ferrowind/planning/calendar_store.h"
#include "ferrowind/views/planning/day_text.h"

namespace ferrowind {
namespace {

using planning::HistoryFilter;

constexpr std::int32_t kEverybody = 0;
constexpr std::int32_t kMine = 1;

}  // namespace

HistoryChoice::HistoryChoice(const platform::Platform& platform, const planning::CurrencyList& currencies,
                             Lists lists)
    : platform_(platform), currencies_(currencies), lists_(lists) {
  lists_.persons.AddItem(Said(platform_, "Everybody"), kEverybody);
  lists_.persons.AddItem(Said(platform_, "Me"), kMine);
  lists_.persons.Choose(0);
  FillCalendars();
}

void HistoryChoice::OnChoice(std::function<void()> handler) {
  subscriptions_.clear();
  const auto unless_taken_back = [this, handler = std::move(handler)] {
    if (!takes_back_) handler();
  };
  for (platform::DropDownList* list : {&lists_.calendars, &lists_.persons})
    subscriptions_.push_back(list->OnChoice(unless_taken_back));
}

void HistoryChoice::FillCalendars() {
  Add({});
  auto calendars = planning::LoadRules().calendars;
  std::stable_sort(calendars.begin(), calendars.end(), [&](const auto& left, const auto& right) {
    const auto code_of = [&](std::int32_t id) {
      const auto* const currency = currencies_.Find(id);
      return currency != nullptr ? currency->code : std::string();
    };
    return code_of(left.first) < code_of(right.first);
  });
  for (const auto& [currency, year] : calendars) Add({currency, year});
  lists_.calendars.Choose(0);
}

void HistoryChoice::Add(const HistoryFilter& filter) {
  std::string text = Said(platform_, "All");
  if (filter.currency && filter.year) {
    const planning::Currency currency = currencies_.FindOrNumber(*filter.currency);
    text = planning::CalendarName(currency, *filter.year);
    if (filter.day_of_year) {
      const auto day = platform::Date(*filter.year, 1, 1).AddDays(*filter.day_of_year - 1);
      text = planning::UnmistakableCode(currency) + ", " + DayText(platform_.locale, day);
    }
  }
  lists_.calendars.AddItem(text, static_cast<std::int32_t>(filters_.size()));
  filters_.push_back(filter);
}

bool HistoryChoice::Choose(const HistoryFilter& filter) {
  const auto is_same = [&](const HistoryFilter& known) {
    return known.currency == filter.currency && known.year == filter.year &&
           known.day_of_year == filter.day_of_year;
  };
  const auto found = std::find_if(filters_.begin(), filters_.end(), is_same);
  const auto position = static_cast<std::int32_t>(found - filters_.begin());
  if (found == filters_.end()) Add(filter);
  if (lists_.calendars.Chosen() == position) return false;
  lists_.calendars.Choose(position);
  return true;
}

std::optional<HistoryChoice::Choice> HistoryChoice::Chosen() const {
  const std::int32_t calendar = lists_.calendars.Chosen();
  const std::int32_t person = lists_.persons.Chosen();
  if (calendar < 0 || person < 0) return std::nullopt;
  return Choice{filters_[static_cast<std::size_t>(lists_.calendars.ItemData(calendar))],
                lists_.persons.ItemData(person) == kMine};
}

void HistoryChoice::Keep() {
  calendar_on_show_ = lists_.calendars.Chosen();
  person_on_show_ = lists_.persons.Chosen();
}

void HistoryChoice::TakeBack() {
  takes_back_ = true;
  lists_.calendars.Choose(calendar_on_show_);
  lists_.persons.Choose(person_on_show_);
  takes_back_ = false;
}

}  // namespace ferrowind
