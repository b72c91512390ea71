#include "host/admin/calendar_choice.h"

#include <algorithm>
#include <map>
#include <ostream>
#include <utility>

#include "ferrowind/platform/values/failure.h"

#include "host/admin/text_escapes.h"

namespace ferrowind::host {
namespace {

using planning::Currency;

/// "2028", or "2028..2030".
std::string TextOf(const YearRange& years) {
  const std::string first = std::to_string(years.first);
  return years.first == years.last ? first : first + ".." + std::to_string(years.last);
}

/// Tells which years of all currencies are left out.
class LeftOutYears {
 public:
  LeftOutYears(const planning::YearPlanner& planner, std::ostream& errors)
      : planner_(planner), errors_(errors) {}

  /// Those of `years` in which the currency is money and its book holds.
  [[nodiscard]] YearRange PlannedOf(const Currency& currency, const YearRange& years) {
    YearRange planned = years;
    while (planned.last >= planned.first && !currency.IsLiveIn(planned.last)) --planned.last;
    if (planned.last < years.last) {
      const YearRange after{std::max(years.first, planned.last + 1), years.last};
      errors_ << OneLine(currency.code) << ' ' << TextOf(after)
              << " is left out: " << planning::EndOfMoney(currency).InEnglish() << ".\n";
    }
    if (const auto first = planner_.FirstYearOf(currency)) {
      planned.first = std::clamp(*first, planned.first, planned.last + 1);
      if (planned.first > years.first) {
        before_books_[{TextOf({years.first, planned.first - 1}), *first}].push_back(currency.code);
      }
    }
    return planned;
  }

  void TellYearsBeforeBooks() const {
    for (const auto& [years, codes] : before_books_) {
      for (const std::string& code : codes) errors_ << OneLine(code) << ' ';
      errors_ << years.first << " is left out: the " << (codes.size() == 1 ? "book holds" : "books hold")
              << " from " << years.second << " on.\n";
    }
  }

 private:
  const planning::YearPlanner& planner_;
  std::ostream& errors_;
  /// The currencies whose books do not tell of all years: by these years, and the first of which they tell.
  std::map<std::pair<std::string, int>, std::vector<std::string>> before_books_;
};

void AddYears(const Currency& currency, const YearRange& years, std::vector<ChosenCalendar>& chosen) {
  for (int year = years.first; year <= years.last; ++year) chosen.push_back({&currency, year});
}

}  // namespace

std::vector<ChosenCalendar> ChooseCalendars(const planning::YearPlanner& planner, const std::string& currency,
                                            const YearRange& years, std::ostream& errors) {
  std::vector<ChosenCalendar> chosen;
  if (!planning::MeansAllCurrencies(currency)) {
    AddYears(planner.Currencies().Named(currency), years, chosen);
    return chosen;
  }
  const std::vector<const Currency*> all = planner.WithBooks();
  if (all.empty()) {
    throw platform::Failure(platform::failure_number::kInvalidArgument, "The database has no books");
  }
  LeftOutYears left_out(planner, errors);
  for (const Currency* const one : all) AddYears(*one, left_out.PlannedOf(*one, years), chosen);
  left_out.TellYearsBeforeBooks();
  return chosen;
}

}  // namespace ferrowind::host
