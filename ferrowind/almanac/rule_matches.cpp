#include "ferrowind/almanac/rule_matches.h"

#include "ferrowind/almanac/calendar_content.h"

namespace ferrowind::almanac {

RuleMatches::RuleMatches(const RuleBook& book, const RuleDirectory& directory) : directory_(&directory) {
  matches_.reserve(book.rules.size());
  for (const BookRule& rule : book.rules) {
    if (rule.kind == RuleKind::kWorkingDay) {
      matches_.push_back({directory.Find(kExceptionRule), nullptr});
      continue;
    }
    Match match{directory.FindNamed(rule.name), nullptr};
    if (!rule.expression.moves.empty()) match.substitute = directory.FindNamed(rule.NameOfMovedDay());
    matches_.push_back(match);
  }
}

const KnownRule* RuleMatches::RuleOf(const PlannedDay& day) const {
  const Match& match = matches_[day.rule];
  return day.standing == Standing::kSubstitute ? match.substitute : match.own;
}

bool RuleMatches::HasNameOf(std::size_t book_rule, std::int32_t rule) const {
  const Match& match = matches_[book_rule];
  return (match.own != nullptr && match.own->id == rule) ||
         (match.substitute != nullptr && match.substitute->id == rule);
}

}  // namespace ferrowind::almanac
