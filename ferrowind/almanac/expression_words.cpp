#include "ferrowind/almanac/expression_words.h"

#include <array>
#include <cstddef>
#include <cstdlib>
#include <iterator>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "ferrowind/almanac/anchor_day.h"
#include "ferrowind/almanac/date_words.h"
#include "ferrowind/almanac/day_count.h"
#include "ferrowind/almanac/easter.h"

namespace ferrowind::almanac {

using platform::Phrase;

namespace {

/// More years than these are not told one by one.
constexpr std::size_t kMostYearsTold = 4;

/// "Easter Sunday, two days before" for -2; the day itself for 0.
Phrase WithOffset(Phrase day, int days) {
  if (days == 0) return day;
  const int count = std::abs(days);
  std::vector<Phrase> parts{std::move(day), NumberWord(count)};
  return days < 0 ? Phrase::OfNumber(count, "%1, %2 day before", "%1, %2 days before", std::move(parts))
                  : Phrase::OfNumber(count, "%1, %2 day after", "%1, %2 days after", std::move(parts));
}

Phrase YearList(const std::vector<int>& years) {
  if (years.size() > kMostYearsTold) return Phrase::Of("certain years");
  Phrase list;
  for (std::size_t i = 0; i < years.size(); ++i) {
    const std::string year = std::to_string(years[i]);
    const bool is_last = i + 1 == years.size();
    list = i == 0 ? Phrase(year) : Phrase::Of(is_last ? "%1 and %2" : "%1, %2", {list, year});
  }
  return list;
}

/// The phrase with the days and the years to which the expression is limited.
Phrase WithLimits(Phrase phrase, const DateExpression& expression) {
  //: says 1
  const auto limit = [&phrase](const char* text, Phrase to) {
    phrase = Phrase::Of(text, {std::move(phrase), std::move(to)});
  };
  if (!expression.only_on.IsEmpty()) limit("%1, only on %2", AnyOf(expression.only_on));
  const YearLimits& years = expression.years;
  if (years.from) limit("%1, from %2 on", std::to_string(*years.from));
  if (years.to) limit("%1, until %2", std::to_string(*years.to));
  if (years.choice == YearChoice::kOnly) limit("%1, only in %2", YearList(years.years));
  return phrase;
}

const char* OrdinalAtStart(int ordinal) {
  //: said
  static constexpr std::array kOrdinals{"Last", "First", "Second", "Third", "Fourth", "Fifth"};
  return kOrdinals.at(static_cast<std::size_t>(ordinal));
}

/// An anchor as what a day is or what one comes after, in a certain year.
struct AnchorWords {
  /// Of the anchor's year.
  int year;
  /// The anchor's day.
  std::int32_t day;
  /// Whether the words stand within a sentence, after "on or after"; else at its start.
  bool is_within;

  Phrase operator()(const FixedDate& date) const {
    return is_within ? LongDate(day) : DayAndMonth(date.month, date.day);
  }
  Phrase operator()(const SingleDate&) const {
    return is_within ? LongDate(day) : Phrase::Of("Once, on %1", {LongDate(day)});
  }
  Phrase operator()(const EasterDate& easter) const {
    //: said
    const char* const text =
        easter.church == Church::kOrthodox ? "Orthodox Easter Sunday %1" : "Easter Sunday %1";
    return WithOffset(Phrase::Of(text, {LongDate(EasterSunday(easter.church, year))}), easter.offset);
  }
  Phrase operator()(const NthWeekday& nth) const {
    const std::string ordinal =
        is_within ? std::string(OrdinalWord(nth.ordinal)) : OrdinalAtStart(nth.ordinal);
    return Phrase::Of(is_within ? "the %1 %2 of %3 %4" : "%1 %2 of %3 %4",
                      {Phrase::Of(ordinal), Weekday(nth.weekday),
                       Phrase::Of(std::string(MonthName(nth.month))), std::to_string(year)});
  }
  Phrase operator()(const EquinoxDate& equinox) const {
    const Phrase which = Phrase::Of(equinox.equinox == Equinox::kVernal ? "vernal" : "autumnal");
    return Phrase::Of(
        is_within ? "the day of the %1 equinox %2 at UTC%3" : "Day of the %1 equinox %2 at UTC%3",
        {which, std::to_string(year), UtcOffset(equinox.utc_offset_minutes)});
  }
  Phrase operator()(const TableDate& table) const {
    return WithOffset(Phrase::Of("%1 of the table %2", {LongDate(day - table.offset), table.table}),
                      table.offset);
  }
  Phrase operator()(const EveryWeekday& every) const {
    return Phrase::Of(is_within ? "every %1" : "Every %1", {Weekday(every.weekday)});
  }
  Phrase operator()(const BetweenHolidays&) const {
    return Phrase::Of(is_within ? "a day between two holidays" : "A day between two holidays");
  }
  Phrase operator()(const UnknownDate&) const {
    return Phrase::Of(is_within ? "a day that is not known yet" : "A day that is not known yet");
  }
};

/// The year whose anchor leads to the base date.
int YearOfAnchor(const DateExpression& expression, std::int32_t base) {
  const int year = YearOf(base);
  for (const int candidate : {year, year - 1, year + 1, year - 2, year + 2}) {
    const auto day = AnchorDay(expression.anchor, candidate);
    if (day && TakeSteps(expression, *day) == base) return candidate;
  }
  return year;
}

}  // namespace

Phrase WordsOfBase(const DateExpression& expression, std::int32_t base) {
  const auto words_of_step = [](const WeekdayStep& step, const Phrase& from) {
    return Phrase::Of("%1 %2 %3",
                      {Weekday(step.weekday), Phrase::Of(std::string(RelationWords(step.relation))), from});
  };
  const bool has_steps = !expression.steps.empty();
  if (has_steps && std::holds_alternative<TableDate>(expression.anchor)) {
    // Several dates of a table may lead to the day; which did is not kept.
    const std::string& table = std::get<TableDate>(expression.anchor).table;
    return WithLimits(words_of_step(expression.steps.front(), Phrase::Of("a day of the table %1", {table})),
                      expression);
  }
  const int year = YearOfAnchor(expression, base);
  const std::int32_t day = has_steps ? AnchorDay(expression.anchor, year).value_or(base) : base;
  Phrase words = std::visit(AnchorWords{year, day, has_steps}, expression.anchor);
  for (auto step = expression.steps.rbegin(); step != expression.steps.rend(); ++step) {
    words = words_of_step(*step, words);
    if (std::next(step) != expression.steps.rend()) words = Phrase::Of("the %1", {words});
  }
  return WithLimits(words, expression);
}

Phrase WordsOfTarget(const MoveTarget& target) {
  const bool is_next = target.direction == Direction::kNext;
  if (target.direction == Direction::kNearest) return Weekday(target.weekday);
  if (target.weekday == MoveTarget::kFreeDay)
    return Phrase::Of(is_next ? "the next free day" : "the previous free day");
  return Phrase::Of(is_next ? "the next %1" : "the previous %1", {Weekday(target.weekday)});
}

}  // namespace ferrowind::almanac
