#include "ferrowind/almanac/book_faults.h"

#include <cstddef>
#include <map>
#include <optional>
#include <set>
#include <string_view>
#include <utility>
#include <variant>

#include "ferrowind/almanac/base_dates.h"
#include "ferrowind/almanac/book_text.h"
#include "ferrowind/almanac/calendar_content.h"
#include "ferrowind/almanac/date_words.h"
#include "ferrowind/platform/values/case_fold.h"
#include "ferrowind/platform/values/conversion.h"

namespace ferrowind::almanac {
namespace {

/// Two names are one in the database when these are the same.
std::string KeyOf(const std::string& name) { return platform::FoldCase(platform::Trim(name)); }

bool IsBlank(const std::string& text) { return platform::Trim(text).empty(); }

/// The one date of a celebration.
std::optional<FixedDate> DateOf(const BookRule& rule) {
  const auto* date = std::get_if<FixedDate>(&rule.expression.anchor);
  if (rule.kind != RuleKind::kCelebration || date == nullptr) return std::nullopt;
  return *date;
}

/// What the database will know of a name.
struct NameUse {
  RuleKind kind;
  std::optional<FixedDate> date;
  /// Where the name stands, such as "rule 7".
  std::string place;
};

/// The names met so far, each as it was used first.
class NamesInUse {
 public:
  /// What is wrong with this use when the first one of the name was another.
  std::optional<std::string> Add(const std::string& name, const NameUse& use) {
    const auto [known, is_new] = uses_.emplace(KeyOf(name), use);
    if (is_new) return std::nullopt;
    const NameUse& first = known->second;
    if (first.kind != use.kind) {
      return '"' + name + "\" is a " + std::string(TextOf(first.kind)) + " in " + first.place + " and a " +
             std::string(TextOf(use.kind)) + " in " + use.place + ": a name has one kind";
    }
    if (first.date && use.date && *first.date != *use.date) {
      return '"' + name + "\" is on " + DayAndMonth(first.date->month, first.date->day).InEnglish() + " in " +
             first.place + " and on " + DayAndMonth(use.date->month, use.date->day).InEnglish() + " in " +
             use.place + ": a celebration has one date";
    }
    return std::nullopt;
  }

 private:
  std::map<std::string, NameUse> uses_;
};

/// The names that a rule at `place` uses.
std::vector<std::pair<std::string, NameUse>> UsesOf(const BookRule& rule, const std::string& place) {
  std::vector<std::pair<std::string, NameUse>> uses = {{rule.name, {rule.kind, DateOf(rule), place}}};
  if (!rule.expression.moves.empty()) {
    uses.push_back({rule.NameOfMovedDay(), {RuleKind::kPoint, std::nullopt, place + " (moved day)"}});
  }
  return uses;
}

/// "AUD", "AUD and CAD", or "AUD, CAD and 23 others".
std::string Listed(const std::vector<std::string>& places) {
  constexpr std::size_t kMostTold = 3;
  const bool are_too_many = places.size() > kMostTold;
  const std::size_t told = are_too_many ? kMostTold - 1 : places.size();
  std::string list;
  for (std::size_t i = 0; i < told; ++i) {
    if (i > 0) list += i + 1 == told && !are_too_many ? " and " : ", ";
    list += places[i];
  }
  return are_too_many ? list + " and " + std::to_string(places.size() - told) + " others" : list;
}

/// How several books use one name.
class SharedName {
 public:
  explicit SharedName(std::string name) : name_(std::move(name)) {}

  void Add(const NameUse& use) {
    kinds_.Add("a " + std::string(TextOf(use.kind)), use.place);
    if (use.date) dates_.Add("on " + DayAndMonth(use.date->month, use.date->day).InEnglish(), use.place);
  }

  [[nodiscard]] std::optional<std::string> Fault() const {
    if (kinds_.Differ()) return Told(kinds_) + ": a name has one kind";
    if (dates_.Differ()) return Told(dates_) + ": a celebration has one date";
    return std::nullopt;
  }

 private:
  /// What the name is, and where it is that.
  class Meanings {
   public:
    void Add(const std::string& meaning, const std::string& place) {
      for (auto& [known, places] : places_) {
        if (known == meaning) return places.push_back(place);
      }
      places_.push_back({meaning, {place}});
    }
    [[nodiscard]] bool Differ() const { return places_.size() > 1; }
    [[nodiscard]] std::string ToText() const {
      std::string text;
      for (const auto& [meaning, places] : places_) {
        text += (text.empty() ? "" : " and ") + meaning + " in " + Listed(places);
      }
      return text;
    }

   private:
    std::vector<std::pair<std::string, std::vector<std::string>>> places_;
  };

  [[nodiscard]] std::string Told(const Meanings& meanings) const {
    return '"' + name_ + "\" is " + meanings.ToText();
  }

  std::string name_;
  Meanings kinds_;
  Meanings dates_;
};

/// The names that books share.
class SharedNames {
 public:
  /// What a book says twice in different ways is a fault of its own; here it says what it says first.
  /// `are_new` tells whether names may come in that no book before has.
  void Add(const NamedBook& book, bool are_new) {
    std::set<std::string> own;
    for (std::size_t i = 0; i < book.book.rules.size(); ++i) {
      const std::string place =
          i < book.lines.size() ? "line " + std::to_string(book.lines[i]) + " of " + book.name : book.name;
      for (const auto& [name, use] : UsesOf(book.book.rules[i], place)) {
        const std::string key = KeyOf(name);
        if (own.insert(key).second) Add(key, name, use, are_new);
      }
    }
  }

  [[nodiscard]] std::vector<std::string> Faults() const {
    std::vector<std::string> faults;
    for (const SharedName& name : names_) {
      if (auto fault = name.Fault()) faults.push_back(std::move(*fault));
    }
    return faults;
  }

 private:
  void Add(const std::string& key, const std::string& name, const NameUse& use, bool is_new) {
    auto known = positions_.find(key);
    if (known == positions_.end()) {
      if (!is_new) return;
      known = positions_.emplace(key, names_.size()).first;
      names_.emplace_back(name);
    }
    names_[known->second].Add(use);
  }

  /// In the order in which the books use them.
  std::vector<SharedName> names_;
  std::map<std::string, std::size_t> positions_;
};

/// Looks at one book.
class BookInspection {
 public:
  BookInspection(const RuleBook& book, const DateTables& tables, const std::vector<std::size_t>& lines)
      : book_(book), tables_(tables), lines_(lines) {}

  std::vector<std::string> Inspect() {
    if (IsBlank(book_.publisher)) faults_.emplace_back("The book names no publisher");
    if (IsBlank(book_.document)) faults_.emplace_back("The book names no document");
    if (book_.since && (*book_.since < kFirstYear || *book_.since > kLastYear)) {
      faults_.push_back("The book holds from " + std::to_string(*book_.since) + " on, which is not " +
                        AYear());
    }
    for (const BookRule& rule : book_.rules) {
      if (rule.expression.IsEveryWeekday() && rule.kind == RuleKind::kWeekday) {
        weekend_.Add(std::get<EveryWeekday>(rule.expression.anchor).weekday);
      }
    }
    if (weekend_.IsEmpty()) {
      faults_.emplace_back(
          "The book closes no weekday: without a rule of the kind weekday each Saturday and Sunday would be "
          "a working day");
    }
    for (position_ = 0; position_ < book_.rules.size(); ++position_) InspectRule(book_.rules[position_]);
    return std::move(faults_);
  }

 private:
  void InspectRule(const BookRule& rule) {
    if (IsBlank(rule.name)) {
      Add("has no name");
    } else {
      InspectNames(rule);
      for (const auto& [name, use] : UsesOf(rule, PlaceOf(position_))) {
        if (auto fault = names_.Add(name, use)) faults_.push_back(std::move(*fault));
      }
      InspectRepetition(rule);
    }
    InspectKind(rule);
    InspectMoves(rule);
    InspectDates(rule);
  }

  void InspectNames(const BookRule& rule) {
    const std::string built_in = KeyOf(kExceptionName);
    if (KeyOf(rule.name) == built_in ||
        (!rule.expression.moves.empty() && KeyOf(rule.NameOfMovedDay()) == built_in)) {
      Add("has the name of the built-in rule \"" + std::string(kExceptionName) +
          "\", which no book can have");
    }
  }

  void InspectRepetition(const BookRule& rule) {
    const auto [first, is_new] =
        expressions_.emplace(KeyOf(rule.name) + '\n' + rule.expression.ToText(), position_);
    if (!is_new) Add("says the same as " + PlaceOf(first->second));
  }

  void InspectKind(const BookRule& rule) {
    const DateExpression& expression = rule.expression;
    if (expression.IsEveryWeekday() != (rule.kind == RuleKind::kWeekday)) {
      Add(expression.IsEveryWeekday()
              ? "is each week on a weekday, so its kind is weekday"
              : "is of the kind weekday, so its expression is \"weekday\" and a weekday");
    } else if (expression.IsBetween() && rule.kind != RuleKind::kPoint) {
      Add("is a day between holidays, so its kind is point");
    } else if (rule.kind == RuleKind::kCelebration) {
      InspectCelebration(expression);
    }
  }

  void InspectCelebration(const DateExpression& expression) {
    if (!std::holds_alternative<FixedDate>(expression.anchor) || !expression.steps.empty()) {
      Add("is not on the same date each year, so its kind is point");
      return;
    }
    for (const Move& move : expression.moves) {
      for (int weekday = 1; weekday <= 7; ++weekday) {
        if (!move.weekdays.Contains(weekday) || weekend_.Contains(weekday)) continue;
        Add("moves off a " + std::string(WeekdayName(weekday)) +
            ", a working day, and takes its name along, so its kind is point");
        return;
      }
    }
  }

  void InspectMoves(const BookRule& rule) {
    const DateExpression& expression = rule.expression;
    const bool can_move = rule.kind != RuleKind::kWorkingDay && !expression.IsEveryWeekday() &&
                          !expression.IsBetween() && !expression.IsUnknown();
    if (!can_move && (!expression.moves.empty() || expression.else_not_observed)) {
      Add("neither moves nor is dropped: it is a working day, a weekday, a day between holidays or unknown");
    } else if (expression.moves.empty() && !rule.moved_name.empty()) {
      Add("names its moved day, but does not move");
    } else {
      InspectTargets(expression);
    }
  }

  /// The weekday that is nearest to a day is the day itself when it is that weekday.
  void InspectTargets(const DateExpression& expression) {
    for (const Move& move : expression.moves) {
      const int weekday = move.target.weekday;
      if (move.target.direction != Direction::kNearest || !move.weekdays.Contains(weekday)) continue;
      const std::string_view name = WeekdayName(weekday);
      Add(std::string("moves off a ")
              .append(name)
              .append(" to the nearest ")
              .append(name)
              .append(", which is the same day"));
    }
  }

  void InspectDates(const BookRule& rule) {
    const DateExpression& expression = rule.expression;
    if (const auto* table = std::get_if<TableDate>(&expression.anchor)) {
      if (tables_.Find(table->table) == nullptr) {
        Add("asks for the table " + table->table + ", and there is none of that name");
        return;
      }
    }
    if (!HasDates(expression)) Add("is on no day of any year");
  }

  [[nodiscard]] bool HasDates(const DateExpression& expression) const {
    if (!expression.IsBetween() && !expression.IsUnknown()) return HasBaseDates(expression, tables_);
    for (int year = kFirstYear; year <= kLastYear; ++year) {
      if (expression.years.Include(year)) return true;
    }
    return false;
  }

  [[nodiscard]] std::string PlaceOf(std::size_t position) const {
    if (position < lines_.size()) return "line " + std::to_string(lines_[position]);
    return "rule " + std::to_string(position + 1);
  }

  void Add(const std::string& what) {
    const BookRule& rule = book_.rules[position_];
    std::string place = PlaceOf(position_);
    place.front() = place.front() == 'l' ? 'L' : 'R';
    faults_.push_back(place + " (" + (IsBlank(rule.name) ? rule.expression.ToText() : rule.name) + ") " +
                      what);
  }

  const RuleBook& book_;
  const DateTables& tables_;
  const std::vector<std::size_t>& lines_;
  WeekdaySet weekend_;
  std::size_t position_ = 0;
  NamesInUse names_;
  std::map<std::string, std::size_t> expressions_;
  std::vector<std::string> faults_;
};

}  // namespace

std::vector<std::string> FaultsOf(const RuleBook& book, const DateTables& tables,
                                  const std::vector<std::size_t>& lines) {
  return BookInspection(book, tables, lines).Inspect();
}

std::vector<std::string> FaultsBetween(const std::vector<NamedBook>& books,
                                       const std::vector<NamedBook>& others) {
  SharedNames names;
  for (const NamedBook& book : books) names.Add(book, true);
  for (const NamedBook& book : others) names.Add(book, false);
  return names.Faults();
}

}  // namespace ferrowind::almanac
