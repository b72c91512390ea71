#include "ferrowind/exchange/year_list.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

#include "ferrowind/exchange/list_faults.h"
#include "ferrowind/platform/values/case_fold.h"

namespace ferrowind::exchange {
namespace {

[[noreturn]] void Refuse(std::string text) { throw ListError({{0, std::move(text)}}); }

std::string CountedDays(std::size_t count) { return count == 1 ? "1 day" : std::to_string(count) + " days"; }

std::string Joined(const std::set<std::string>& texts) {
  std::string joined;
  for (const std::string& text : texts) joined += (joined.empty() ? "" : ", ") + text;
  return joined;
}

class Sorter {
 public:
  Sorter(std::string_view currency, const std::optional<WantedYears>& wanted)
      : currency_(currency), wanted_(wanted) {}

  SortedList Sort(const DayList& list) {
    sorted_.remarks = list.remarks;
    for (const ListedDay& day : list.days) {
      if (IsOfCurrency(day) && IsOfWantedYear(day)) Take(day);
    }
    TellOthers();
    faults_.ThrowIfAny();
    RequireYears();
    for (auto& [year, days] : years_) {
      YearList& sorted = sorted_.years.emplace_back(YearList{year, {}});
      for (auto& [date, day] : days) sorted.days.push_back(std::move(day));
    }
    return std::move(sorted_);
  }

 private:
  bool IsOfCurrency(const ListedDay& day) {
    if (day.currency.empty() || platform::CompareIgnoringCase(day.currency, currency_) == 0) return true;
    ++of_other_currencies_;
    other_currencies_.insert(day.currency);
    return false;
  }

  bool IsOfWantedYear(const ListedDay& day) {
    if (!wanted_ || (day.date.Year() >= wanted_->first && day.date.Year() <= wanted_->last)) return true;
    ++of_other_years_;
    other_years_.insert(std::to_string(day.date.Year()));
    return false;
  }

  void Take(const ListedDay& day) {
    const auto [place, is_new] = years_[day.date.Year()].try_emplace(day.date, day);
    if (is_new) return;
    const ListedDay& first = place->second;
    const std::string twice = day.date.ToIso() + " stands in " + LineText(first.line) + " already";
    if (first.kind != day.kind) {
      faults_.Add(day.line, twice + ", as a " + std::string(TextOf(first.kind)) + ", and here as a " +
                                std::string(TextOf(day.kind)));
    } else if (first.name != day.name && !day.name.empty()) {
      sorted_.remarks.push_back(Capital(LineText(day.line)) + ": " + twice + "; the name " +
                                Quoted(day.name) + " is left out");
    } else {
      sorted_.remarks.push_back(Capital(LineText(day.line)) + ": " + twice);
    }
  }

  static std::string Capital(std::string text) {
    if (text.starts_with('l')) text.front() = 'L';
    if (text.starts_with('a')) text.front() = 'A';
    return text;
  }

  void TellOthers() {
    if (of_other_currencies_ != 0) {
      sorted_.remarks.push_back(CountedDays(of_other_currencies_) + " of other currencies " +
                                (of_other_currencies_ == 1 ? "is" : "are") +
                                " left out: " + Joined(other_currencies_));
    }
    if (of_other_years_ != 0) {
      sorted_.remarks.push_back(CountedDays(of_other_years_) + " of other years " +
                                (of_other_years_ == 1 ? "is" : "are") + " left out: " + Joined(other_years_));
    }
  }

  void RequireYears() const {
    if (wanted_) {
      for (int year = wanted_->first; year <= wanted_->last; ++year) {
        if (!years_.contains(year))
          Refuse("The list has no day of " + currency_ + " " + std::to_string(year));
      }
    } else if (years_.empty()) {
      Refuse("The list has no day of " + currency_);
    } else if (years_.size() > 1) {
      std::set<std::string> found;
      for (const auto& [year, days] : years_) found.insert(std::to_string(year));
      Refuse("The list has days of several years: " + Joined(found) +
             "; say with --year which of them are whole");
    }
  }

  std::string currency_;
  const std::optional<WantedYears>& wanted_;
  SortedList sorted_;
  ListFaults faults_;
  std::map<int, std::map<platform::Date, ListedDay>> years_;
  std::size_t of_other_currencies_ = 0;
  std::set<std::string> other_currencies_;
  std::size_t of_other_years_ = 0;
  std::set<std::string> other_years_;
};

}  // namespace

const ListedDay* YearList::Find(const platform::Date& date) const {
  const auto place =
      std::lower_bound(days.begin(), days.end(), date,
                       [](const ListedDay& day, const platform::Date& wanted) { return day.date < wanted; });
  return place != days.end() && place->date == date ? &*place : nullptr;
}

bool YearList::ListsWeekday(int weekday) const {
  const auto count = std::count_if(days.begin(), days.end(),
                                   [&](const ListedDay& day) { return day.date.Weekday() == weekday; });
  return static_cast<std::size_t>(count) >= kEnough;
}

SortedList SortByYear(const DayList& list, std::string_view currency,
                      const std::optional<WantedYears>& wanted) {
  return Sorter(currency, wanted).Sort(list);
}

}  // namespace ferrowind::exchange
