#include "ferrowind/almanac/prepared_base.h"

#include <algorithm>

namespace ferrowind::almanac {

YearsAround::YearsAround(int year) : middle_(year), first_days_() {
  for (int i = 0; i < static_cast<int>(first_days_.size()); ++i) {
    first_days_[static_cast<std::size_t>(i)] = SerialOf(year - kReach + i, 1, 1);
  }
}

int YearsAround::YearOf(std::int32_t day) const {
  int year = middle_;
  while (day < FirstDayOf(year)) --year;
  while (day >= FirstDayOf(year + 1)) ++year;
  return year;
}

PreparedBase::PreparedBase(const DateExpression& expression, const DateTables& tables)
    : expression_(&expression),
      has_conditions_(!expression.only_on.IsEmpty() || expression.years != YearLimits()) {
  for (const WeekdayStep& step : expression.steps) {
    const DaySpan reach = SpanOfStep(step.relation);
    shift_ = {shift_.first + reach.first, shift_.last + reach.last};
  }
  if (const auto* table = std::get_if<TableDate>(&expression.anchor)) {
    source_ = Source::kTable;
    KeepTable(tables, table->table, table->offset);
  } else if (const auto* single = std::get_if<SingleDate>(&expression.anchor)) {
    source_ = Source::kSingle;
    single_day_ = TakeSteps(expression, single->date.Serial());
  } else if (expression.IsEveryWeekday()) {
    source_ = Source::kWeekly;
  } else if (expression.IsUnknown()) {
    // As of a table that reaches no year.
    source_ = Source::kTable;
  } else if (expression.IsBetween()) {
    source_ = Source::kNone;
  } else {
    const DaySpan anchor = SpanOfAnchor(expression.anchor);
    span_ = {anchor.first + shift_.first, anchor.last + shift_.last};
  }
}

void PreparedBase::KeepTable(const DateTables& tables, const std::string& name, int offset) {
  const DateTable* table = tables.Find(name);
  if (table == nullptr) return;
  first_known_ = table->first_year;
  last_known_ = table->last_year;
  table_days_.reserve(table->dates.size());
  for (const platform::Date& date : table->dates) table_days_.push_back(date.Serial() + offset);
  // Days that stay where they are stay in their years.
  if (offset == 0 && expression_->steps.empty()) return;
  bool comes_later = false;
  bool comes_earlier = false;
  for (const platform::Date& date : table->dates) {
    const std::int32_t day = date.Serial() + offset;
    const int year = platform::Date::FromSerial(TakeSteps(*expression_, day)).Year();
    comes_later = comes_later || year > date.Year();
    comes_earlier = comes_earlier || year < date.Year();
  }
  if (comes_later) ++first_known_;
  if (comes_earlier) --last_known_;
}

bool PreparedBase::Knows(int year) const {
  return source_ != Source::kTable || (first_known_ <= year && year <= last_known_);
}

PreparedBase::YearSpan PreparedBase::PossibleYears() const {
  if (source_ == Source::kNone) return {kFirstYear, kFirstYear - 1};
  const YearLimits& limits = expression_->years;
  YearSpan span{std::max(kFirstYear, limits.from.value_or(kFirstYear)),
                std::min(kLastYear, limits.to.value_or(kLastYear))};
  if (limits.choice == YearChoice::kOnly) {
    span = {std::max(span.first, limits.years.front()), std::min(span.last, limits.years.back())};
  }
  if (source_ == Source::kTable) {
    span = {std::max(span.first, first_known_), std::min(span.last, last_known_)};
  } else if (source_ == Source::kSingle) {
    const int year = platform::Date::FromSerial(single_day_).Year();
    span = {std::max(span.first, year), std::min(span.last, year)};
  }
  return span;
}

bool PreparedBase::Counts(std::int32_t day, const YearsAround& years) const {
  const WeekdaySet& weekdays = expression_->only_on;
  return (weekdays.IsEmpty() || weekdays.Contains(WeekdayOf(day))) &&
         expression_->years.Include(years.YearOf(day));
}

}  // namespace ferrowind::almanac
