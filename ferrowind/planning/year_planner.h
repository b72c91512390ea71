#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <vector>

#include "ferrowind/almanac/date_table.h"
#include "ferrowind/almanac/planner.h"
#include "ferrowind/almanac/rule_directory.h"
#include "ferrowind/planning/book_store.h"
#include "ferrowind/planning/currency_list.h"
#include "ferrowind/planning/year_preparation.h"

namespace ferrowind::planning {

/// Plans years by the books of the calling thread's database: its currencies, rules and books as they were
/// when this was made. All fail as database_call.h says.
class YearPlanner {
 public:
  /// Keeps what it needs of the tables.
  explicit YearPlanner(const almanac::DateTables& tables);

  [[nodiscard]] const CurrencyList& Currencies() const { return currencies_; }
  [[nodiscard]] const almanac::RuleDirectory& Rules() const { return rules_; }
  /// By the number of a rule, the currencies whose books have it.
  using RuleOwners = std::map<std::int32_t, std::set<std::int32_t>>;
  [[nodiscard]] const RuleOwners& Owners() const { return owners_; }
  /// Those that have a book, by code.
  [[nodiscard]] std::vector<const Currency*> WithBooks() const;
  [[nodiscard]] bool HasBook(const Currency& currency) const { return books_.contains(currency.id); }

  /// The first year that the book of the currency tells of; nothing when it has none that can be used, or one
  /// that tells of all years.
  [[nodiscard]] std::optional<int> FirstYearOf(const Currency& currency) const;
  /// Plans the years of the currency; null when it has no book, or one that cannot be used.
  [[nodiscard]] const almanac::Planner* PlannerOf(const Currency& currency) const;

  /// What the calendar should be, without reading it; fails as `Prepare` does.
  [[nodiscard]] almanac::YearPlan Plan(const Currency& currency, int year) const;
  /// The same; nothing where the currency has no book that can be used and tells of that year.
  [[nodiscard]] std::optional<almanac::YearPlan> PlanIfKnown(const Currency& currency, int year) const;

  /// The calendar as it is now beside its plan; must not outlive this. A currency without a book, or with one
  /// that has faults, is a failure that says so, and so are a year after its last day, one before its book
  /// holds and one that cannot be planned.
  [[nodiscard]] std::unique_ptr<YearPreparation> Prepare(const Currency& currency, int year) const;

 private:
  [[nodiscard]] const almanac::Planner& RequirePlanner(const Currency& currency, int year) const;
  void AddOwner(std::int32_t currency, const almanac::RuleBook& book);

  struct BookState {
    std::unique_ptr<const almanac::Planner> planner;
    std::vector<std::string> faults;
  };

  CurrencyList currencies_;
  almanac::RuleDirectory rules_;
  /// By the currency's number.
  std::map<std::int32_t, BookState> books_;
  RuleOwners owners_;
};

}  // namespace ferrowind::planning
