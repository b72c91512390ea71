#include "ferrowind/almanac/book_faults.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <variant>

#include "ferrowind/almanac/base_dates.h"
#include "ferrowind/almanac/book_text.h"
#include "ferrowind/almanac/calendar_content.h"
#include "ferrowind/almanac/date_words.h"
#include "ferrowind/almanac/rule_directory.h"

namespace ferrowind::almanac {
namespace {

using platform::Phrase;

bool IsBlank(std::string_view text) { return text.find_first_not_of(' ') == std::string_view::npos; }

/// The one date of a celebration.
std::optional<FixedDate> DateOf(const BookRule& rule) {
  const auto* date = std::get_if<FixedDate>(&rule.expression.anchor);
  if (rule.kind != RuleKind::kCelebration || date == nullptr) return std::nullopt;
  return *date;
}

/// "a celebration".
Phrase Kind(RuleKind kind) {
  switch (kind) {
    case RuleKind::kWorkingDay:
      return Phrase::Of("a working day");
    case RuleKind::kWeekday:
      return Phrase::Of("a weekday");
    case RuleKind::kCelebration:
      return Phrase::Of("a celebration");
    case RuleKind::kPoint:
      return Phrase::Of("a point");
  }
  return {};
}

/// "on 1 May".
Phrase OnDate(const FixedDate& date) { return Phrase::Of("on %1", {DayAndMonth(date.month, date.day)}); }

/// What the database will know of a name that a rule uses.
struct NameUse {
  std::string name;
  std::string key;
  RuleKind kind;
  std::optional<FixedDate> date;
  /// Whether it is the name of the day to which the rule moves.
  bool is_of_moved_day;
};

/// Calls `use` for each name that the rule uses.
template <typename Use>
void ForEachName(const BookRule& rule, const Use& use) {
  use(NameUse{rule.name, NameKey(rule.name), rule.kind, DateOf(rule), false});
  if (rule.expression.moves.empty()) return;
  std::string moved = rule.NameOfMovedDay();
  std::string key = NameKey(moved);
  use(NameUse{std::move(moved), std::move(key), RuleKind::kPoint, std::nullopt, true});
}

/// "rule 7 (moved day)", of a rule that stands at `place`.
Phrase PlaceOfName(const NameUse& use, const Phrase& place) {
  return use.is_of_moved_day ? Phrase::Of("%1 (moved day)", {place}) : place;
}

/// "AUD", "AUD and CAD", or "AUD, CAD and 23 others".
Phrase Listed(const std::vector<Phrase>& places) {
  constexpr std::size_t kMostTold = 3;
  const bool are_too_many = places.size() > kMostTold;
  const std::size_t told = are_too_many ? kMostTold - 1 : places.size();
  Phrase list;
  for (std::size_t i = 0; i < told; ++i) {
    const bool ends_list = i + 1 == told && !are_too_many;
    list = i == 0 ? places[i] : Phrase::Of(ends_list ? "%1 and %2" : "%1, %2", {list, places[i]});
  }
  if (!are_too_many) return list;
  const auto others = static_cast<std::int64_t>(places.size() - told);
  return Phrase::OfNumber(others, "%1 and %n other", "%1 and %n others", {list});
}

/// How several books use one name.
class SharedName {
 public:
  explicit SharedName(std::string name) : name_(std::move(name)) {}

  void Add(const NameUse& use, const Phrase& place) {
    kinds_.Add(Kind(use.kind), place);
    if (use.date) dates_.Add(OnDate(*use.date), place);
  }

  [[nodiscard]] std::optional<Phrase> Fault() const {
    if (kinds_.Differ()) return Phrase::Of("\"%1\" is %2: a name has one kind", {name_, kinds_.WithPlaces()});
    if (dates_.Differ())
      return Phrase::Of("\"%1\" is %2: a celebration has one date", {name_, dates_.WithPlaces()});
    return std::nullopt;
  }

 private:
  /// What the name is, and where it is that.
  class Meanings {
   public:
    void Add(const Phrase& meaning, const Phrase& place) {
      const std::string key = meaning.InEnglish();
      for (auto& known : meanings_) {
        if (known.key == key) return known.places.push_back(place);
      }
      meanings_.push_back({key, meaning, {place}});
    }
    [[nodiscard]] bool Differ() const { return meanings_.size() > 1; }
    /// "a point in AUD and CAD and a celebration in EUR".
    [[nodiscard]] Phrase WithPlaces() const {
      Phrase all;
      for (const auto& [key, meaning, places] : meanings_) {
        const Phrase one = Phrase::Of("%1 in %2", {meaning, Listed(places)});
        all = all.IsEmpty() ? one : Phrase::Of("%1 and %2", {all, one});
      }
      return all;
    }

   private:
    struct Meaning {
      std::string key;
      Phrase meaning;
      std::vector<Phrase> places;
    };
    std::vector<Meaning> meanings_;
  };

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
      const Phrase place = i < book.lines.size()
                               ? Phrase::Of("line %1 of %2", {std::to_string(book.lines[i]), book.name})
                               : Phrase(book.name);
      ForEachName(book.book.rules[i], [&](const NameUse& use) {
        if (own.insert(use.key).second) Add(use, PlaceOfName(use, place), are_new);
      });
    }
  }

  [[nodiscard]] std::vector<Phrase> Faults() const {
    std::vector<Phrase> faults;
    for (const SharedName& name : names_) {
      if (auto fault = name.Fault()) faults.push_back(std::move(*fault));
    }
    return faults;
  }

 private:
  void Add(const NameUse& use, const Phrase& place, bool is_new) {
    auto known = positions_.find(use.key);
    if (known == positions_.end()) {
      if (!is_new) return;
      known = positions_.emplace(use.key, names_.size()).first;
      names_.emplace_back(use.name);
    }
    names_[known->second].Add(use, place);
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

  std::vector<Phrase> Inspect() {
    if (IsBlank(book_.publisher)) faults_.push_back(Phrase::Of("The book names no publisher"));
    if (IsBlank(book_.document)) faults_.push_back(Phrase::Of("The book names no document"));
    if (book_.since && (*book_.since < kFirstYear || *book_.since > kLastYear)) {
      faults_.push_back(
          Phrase::Of("The book holds from %1 on, which is not %2", {std::to_string(*book_.since), AYear()}));
    }
    for (const BookRule& rule : book_.rules) {
      if (rule.expression.IsEveryWeekday() && rule.kind == RuleKind::kWeekday) {
        weekend_.Add(std::get<EveryWeekday>(rule.expression.anchor).weekday);
      }
    }
    if (weekend_.IsEmpty()) {
      faults_.push_back(Phrase::Of(
          "The book closes no weekday: without a rule of the kind weekday each Saturday and Sunday "
          "would be a working day"));
    }
    for (position_ = 0; position_ < book_.rules.size(); ++position_) InspectRule(book_.rules[position_]);
    return std::move(faults_);
  }

 private:
  struct FirstUse {
    NameUse use;
    std::size_t position;
  };

  void InspectRule(const BookRule& rule) {
    if (IsBlank(rule.name)) {
      Add("%1 (%2) has no name");
    } else {
      InspectNames(rule);
    }
    InspectKind(rule);
    InspectMoves(rule);
    InspectDates(rule);
  }

  void InspectNames(const BookRule& rule) {
    static const std::string built_in = NameKey(kExceptionName);
    bool is_built_in = false;
    std::vector<NameUse> uses;
    ForEachName(rule, [&](NameUse use) {
      is_built_in = is_built_in || use.key == built_in;
      uses.push_back(std::move(use));
    });
    if (is_built_in) {
      Add("%1 (%2) has the name of the built-in rule \"%3\", which no book can have",
          {std::string(kExceptionName)});
    }
    const std::string own = uses.front().key;
    for (NameUse& use : uses) InspectUse(std::move(use));
    InspectRepetition(rule, own);
  }

  void InspectUse(NameUse use) {
    const auto known = names_.find(use.key);
    if (known == names_.end()) {
      std::string key = use.key;
      names_.emplace(std::move(key), FirstUse{std::move(use), position_});
      return;
    }
    const NameUse& first = known->second.use;
    const bool is_of_another_kind = first.kind != use.kind;
    if (!is_of_another_kind && (!first.date || !use.date || *first.date == *use.date)) return;
    const Phrase first_place = PlaceOfName(first, PlaceOf(known->second.position));
    const Phrase place = PlaceOfName(use, PlaceOf(position_));
    faults_.push_back(
        is_of_another_kind
            ? Phrase::Of("\"%1\" is %2 in %3 and %4 in %5: a name has one kind",
                         {use.name, Kind(first.kind), first_place, Kind(use.kind), place})
            : Phrase::Of("\"%1\" is %2 in %3 and %4 in %5: a celebration has one date",
                         {use.name, OnDate(*first.date), first_place, OnDate(*use.date), place}));
  }

  void InspectRepetition(const BookRule& rule, const std::string& key) {
    std::vector<std::size_t>& others = rules_of_name_[key];
    const auto first = std::find_if(others.begin(), others.end(), [&](std::size_t position) {
      return book_.rules[position].expression == rule.expression;
    });
    if (first != others.end()) return Add("%1 (%2) says the same as %3", {PlaceOf(*first)});
    others.push_back(position_);
  }

  void InspectKind(const BookRule& rule) {
    const DateExpression& expression = rule.expression;
    if (expression.IsEveryWeekday() != (rule.kind == RuleKind::kWeekday)) {
      Add(expression.IsEveryWeekday()
              ? "%1 (%2) is each week on a weekday, so its kind is weekday"
              : "%1 (%2) is of the kind weekday, so its expression is \"weekday\" and a weekday");
    } else if (expression.IsBetween() && rule.kind != RuleKind::kPoint) {
      Add("%1 (%2) is a day between holidays, so its kind is point");
    } else if (rule.kind == RuleKind::kCelebration) {
      InspectCelebration(expression);
    }
  }

  void InspectCelebration(const DateExpression& expression) {
    if (!std::holds_alternative<FixedDate>(expression.anchor) || !expression.steps.empty()) {
      Add("%1 (%2) is not on the same date each year, so its kind is point");
      return;
    }
    for (const Move& move : expression.moves) {
      for (int weekday = 1; weekday <= 7; ++weekday) {
        if (!move.weekdays.Contains(weekday) || weekend_.Contains(weekday)) continue;
        Add("%1 (%2) moves off a %3, a working day, and takes its name along, so its kind is point",
            {Weekday(weekday)});
        return;
      }
    }
  }

  void InspectMoves(const BookRule& rule) {
    const DateExpression& expression = rule.expression;
    const bool can_move = rule.kind != RuleKind::kWorkingDay && !expression.IsEveryWeekday() &&
                          !expression.IsBetween() && !expression.IsUnknown();
    if (!can_move && (!expression.moves.empty() || expression.else_not_observed)) {
      Add("%1 (%2) neither moves nor is dropped: it is a working day, a weekday, a day between holidays or "
          "unknown");
    } else if (expression.moves.empty() && !rule.moved_name.empty()) {
      Add("%1 (%2) names its moved day, but does not move");
    } else {
      InspectTargets(expression);
    }
  }

  /// The weekday that is nearest to a day is the day itself when it is that weekday.
  void InspectTargets(const DateExpression& expression) {
    for (const Move& move : expression.moves) {
      const int weekday = move.target.weekday;
      if (move.target.direction != Direction::kNearest || !move.weekdays.Contains(weekday)) continue;
      Add("%1 (%2) moves off a %3 to the nearest %3, which is the same day", {Weekday(weekday)});
    }
  }

  void InspectDates(const BookRule& rule) {
    const DateExpression& expression = rule.expression;
    if (const auto* table = std::get_if<TableDate>(&expression.anchor)) {
      if (tables_.Find(table->table) == nullptr) {
        Add("%1 (%2) asks for the table %3, and there is none of that name", {table->table});
        return;
      }
    }
    if (!HasDates(expression)) Add("%1 (%2) is on no day of any year");
  }

  [[nodiscard]] bool HasDates(const DateExpression& expression) const {
    if (!expression.IsBetween() && !expression.IsUnknown()) return HasBaseDates(expression, tables_);
    for (int year = kFirstYear; year <= kLastYear; ++year) {
      if (expression.years.Include(year)) return true;
    }
    return false;
  }

  [[nodiscard]] Phrase PlaceOf(std::size_t position) const {
    if (position < lines_.size()) return Phrase::Of("line %1", {std::to_string(lines_[position])});
    return Phrase::Of("rule %1", {std::to_string(position + 1)});
  }
  [[nodiscard]] Phrase PlaceThatBegins(std::size_t position) const {
    if (position < lines_.size()) return Phrase::Of("Line %1", {std::to_string(lines_[position])});
    return Phrase::Of("Rule %1", {std::to_string(position + 1)});
  }

  /// `sentence` has the place of the rule at "%1", its name at "%2" and `more` from "%3" on.
  //: says 1
  void Add(const std::string& sentence, const std::vector<Phrase>& more = {}) {
    const BookRule& rule = book_.rules[position_];
    std::vector<Phrase> arguments{PlaceThatBegins(position_),
                                  IsBlank(rule.name) ? rule.expression.ToText() : rule.name};
    arguments.insert(arguments.end(), more.begin(), more.end());
    faults_.push_back(Phrase::Of(sentence, std::move(arguments)));
  }

  const RuleBook& book_;
  const DateTables& tables_;
  const std::vector<std::size_t>& lines_;
  WeekdaySet weekend_;
  std::size_t position_ = 0;
  /// By key.
  std::unordered_map<std::string, FirstUse> names_;
  /// The rules that say something else than those before them, by the keys of their names.
  std::unordered_map<std::string, std::vector<std::size_t>> rules_of_name_;
  std::vector<Phrase> faults_;
};

}  // namespace

std::vector<Phrase> FaultsOf(const RuleBook& book, const DateTables& tables,
                             const std::vector<std::size_t>& lines) {
  return BookInspection(book, tables, lines).Inspect();
}

std::vector<Phrase> FaultsBetween(const std::vector<NamedBook>& books, const std::vector<NamedBook>& others) {
  SharedNames names;
  for (const NamedBook& book : books) names.Add(book, true);
  for (const NamedBook& book : others) names.Add(book, false);
  return names.Faults();
}

}  // namespace ferrowind::almanac
