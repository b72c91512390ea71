#include "ferrowind/planning/year_planner.h"

#include <algorithm>
#include <string>
#include <utility>

#include "ferrowind/planning/in_words.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::planning {
namespace {

std::string Joined(const std::vector<std::string>& sentences) {
  std::string joined;
  for (const std::string& sentence : sentences) joined += (joined.empty() ? "" : "; ") + sentence;
  return joined;
}

}  // namespace

YearPlanner::YearPlanner(const almanac::DateTables& tables)
    : currencies_(CurrencyList::Load()), rules_(LoadRules().rules) {
  for (StoredBook& stored : LoadBooks(tables)) {
    BookState& state = books_[stored.currency];
    state.faults = std::move(stored.faults);
    if (state.faults.empty()) {
      state.planner = std::make_unique<const almanac::Planner>(std::move(*stored.book), tables);
      AddOwner(stored.currency, state.planner->Book());
    }
  }
}

void YearPlanner::AddOwner(std::int32_t currency, const almanac::RuleBook& book) {
  const auto add = [&](const std::string& name) {
    if (const auto* const known = rules_.FindNamed(name)) owners_[known->id].insert(currency);
  };
  for (const almanac::BookRule& rule : book.rules) {
    add(rule.name);
    // A holiday that stays where it is has no other name.
    if (!rule.expression.moves.empty()) add(rule.NameOfMovedDay());
  }
}

std::vector<const Currency*> YearPlanner::WithBooks() const {
  std::vector<const Currency*> found;
  for (const Currency& currency : currencies_.All()) {
    if (HasBook(currency)) found.push_back(&currency);
  }
  std::sort(found.begin(), found.end(),
            [](const Currency* left, const Currency* right) { return left->code < right->code; });
  return found;
}

const almanac::Planner* YearPlanner::PlannerOf(const Currency& currency) const {
  const auto found = books_.find(currency.id);
  return found == books_.end() ? nullptr : found->second.planner.get();
}

std::optional<int> YearPlanner::FirstYearOf(const Currency& currency) const {
  const almanac::Planner* const planner = PlannerOf(currency);
  if (planner == nullptr) return std::nullopt;
  return planner->Book().since;
}

const almanac::Planner& YearPlanner::RequirePlanner(const Currency& currency, int year) const {
  const auto found = books_.find(currency.id);
  if (found == books_.end()) {
    throw platform::Failure(platform::failure_number::kInvalidArgument,
                            InWords("%1 has no book, so nothing tells what its calendars should be",
                                    {UnmistakableCode(currency)}));
  }
  if (!currency.IsLiveIn(year)) {
    throw platform::Failure(platform::failure_number::kInvalidArgument,
                            InWords(platform::Phrase::Of("%1, so it has no calendar of %2",
                                                         {EndOfMoney(currency), std::to_string(year)})));
  }
  if (!found->second.faults.empty()) {
    throw platform::Failure(platform::failure_number::kInvalidArgument,
                            InWords("The book of %1 cannot be used: %2",
                                    {UnmistakableCode(currency), Joined(found->second.faults)}));
  }
  const almanac::RuleBook& book = found->second.planner->Book();
  if (!book.HoldsIn(year)) {
    throw platform::Failure(platform::failure_number::kInvalidArgument,
                            InWords(book.WhyNotIn(year, UnmistakableCode(currency))));
  }
  return *found->second.planner;
}

almanac::YearPlan YearPlanner::Plan(const Currency& currency, int year) const {
  return RequirePlanner(currency, year).Plan(year);
}

std::optional<almanac::YearPlan> YearPlanner::PlanIfKnown(const Currency& currency, int year) const {
  const almanac::Planner* const planner = PlannerOf(currency);
  if (planner == nullptr || !planner->Reaches(year)) return std::nullopt;
  return planner->Plan(year);
}

std::unique_ptr<YearPreparation> YearPlanner::Prepare(const Currency& currency, int year) const {
  return std::make_unique<YearPreparation>(currency, year, RequirePlanner(currency, year), rules_,
                                           [this](std::int32_t rule) { return owners_.contains(rule); });
}

}  // namespace ferrowind::planning
