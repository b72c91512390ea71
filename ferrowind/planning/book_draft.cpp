#include "ferrowind/planning/book_draft.h"

#include <charconv>
#include <system_error>
#include <utility>

#include "ferrowind/almanac/expression_error.h"
#include "ferrowind/planning/database_call.h"
#include "ferrowind/planning/in_words.h"
#include "ferrowind/planning/told_write.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::planning {
namespace {

using almanac::BookRule;
using almanac::DateExpression;
using almanac::RuleBook;

RuleDraft DraftOf(const BookRule& rule) {
  return {rule.name, rule.kind, rule.expression.ToText(), rule.comment, rule.moved_name};
}

/// Nothing when the expression is none.
std::optional<BookRule> RuleOf(const RuleDraft& draft) {
  try {
    return BookRule{draft.name, draft.kind, DateExpression::Parse(draft.expression), draft.comment,
                    draft.moved_name};
  } catch (const almanac::ExpressionError&) {
    return std::nullopt;
  }
}

/// The year that the text is; nothing when it is none.
std::optional<int> YearOf(const std::string& text) {
  int year = 0;
  const char* const end = text.data() + text.size();
  const auto read = std::from_chars(text.data(), end, year);
  if (read.ec != std::errc() || read.ptr != end) return std::nullopt;
  return year;
}

std::optional<std::string> NameOn(const almanac::YearPlan& plan, int day_of_year) {
  const almanac::PlannedDay* const day = plan.Find(day_of_year);
  if (day == nullptr) return std::nullopt;
  return plan.NameOf(*day);
}

/// The years that `one` tells of and `other` does not.
std::vector<int> YearsOfOneAlone(const almanac::Planner& one, const almanac::Planner& other, int first_year,
                                 int count) {
  std::vector<int> years;
  for (int year = first_year; year < first_year + count; ++year) {
    if (one.Reaches(year) && !other.Reaches(year)) years.push_back(year);
  }
  return years;
}

}  // namespace

BookDraft::BookDraft(Currency currency, const almanac::DateTables& tables)
    : currency_(std::move(currency)), tables_(tables), shelf_(tables) {
  const StoredBook* const stored = shelf_.Find(currency_);
  if (stored == nullptr) return;
  if (!stored->book) {
    throw platform::Failure(
        platform::failure_number::kInvalidArgument,
        InWords("The book of %1 cannot be read: %2", {UnmistakableCode(currency_), stored->faults.front()}));
  }
  fingerprint_ = stored->fingerprint;
  stored_ = stored->book;
  head_ = *stored->book;
  head_.rules.clear();
  head_.since.reset();
  if (stored->book->since) since_ = std::to_string(*stored->book->since);
  for (const BookRule& rule : stored->book->rules) rules_.push_back(DraftOf(rule));
}

void BookDraft::Insert(std::size_t position, RuleDraft rule) {
  rules_.insert(rules_.begin() + static_cast<std::ptrdiff_t>(position), std::move(rule));
}

void BookDraft::Change(std::size_t position, RuleDraft rule) { rules_[position] = std::move(rule); }

void BookDraft::Remove(std::size_t position) {
  rules_.erase(rules_.begin() + static_cast<std::ptrdiff_t>(position));
}

void BookDraft::MoveDown(std::size_t position) { std::swap(rules_[position], rules_[position + 1]); }

bool BookDraft::IsEmpty() const {
  return rules_.empty() && platform::Trim(since_).empty() && platform::Trim(head_.publisher).empty() &&
         platform::Trim(head_.document).empty();
}

bool BookDraft::IsChanged() const {
  if (!stored_) return !IsEmpty();
  const Readable readable = ReadableBook(0);
  if (HasFaultySince()) return true;
  return readable.book.rules.size() != rules_.size() || readable.book != *stored_;
}

std::vector<std::string> BookDraft::Faults() const {
  std::vector<std::string> faults;
  if (IsEmpty()) return faults;
  for (std::size_t position = 0; position < rules_.size(); ++position) {
    const auto fault = FaultOfExpression(position);
    if (!fault) continue;
    const std::string number = std::to_string(position + 1);
    const std::string& name = rules_[position].name;
    faults.push_back(name.empty() ? InWords("The rule %1: %2", {number, *fault})
                                  : InWords("The rule %1, \"%2\": %3", {number, name, *fault}));
  }
  if (platform::Trim(head_.publisher).empty()) faults.push_back(InWords("The book names no publisher"));
  if (platform::Trim(head_.document).empty()) faults.push_back(InWords("The book names no document"));
  if (HasFaultySince()) faults.push_back(InWords("The book holds since \"%1\", which is no year", {since_}));
  if (!faults.empty()) return faults;
  return shelf_.FaultsWith({{currency_, ReadableBook(0).book}});
}

bool BookDraft::HasFaultySince() const {
  const std::string since = platform::Trim(since_);
  return !since.empty() && !YearOf(since);
}

std::optional<std::string> BookDraft::FaultOfExpression(std::size_t position) const {
  if (platform::Trim(rules_[position].expression).empty())
    return InWords("Choose when it is, or write an expression such as 12-25 or easter-2");
  try {
    (void)DateExpression::Parse(rules_[position].expression);
    return std::nullopt;
  } catch (const almanac::ExpressionError& error) {
    return InWords(error.Sentence());
  }
}

BookDraft::Readable BookDraft::ReadableBook(std::size_t position) const {
  Readable readable{head_, std::nullopt};
  readable.book.since = YearOf(platform::Trim(since_));
  for (std::size_t i = 0; i < rules_.size(); ++i) {
    auto rule = RuleOf(rules_[i]);
    if (!rule) continue;
    if (i == position) readable.position = readable.book.rules.size();
    readable.book.rules.push_back(*std::move(rule));
  }
  return readable;
}

std::vector<almanac::RuleYear> BookDraft::YearsOf(std::size_t position, int first_year, int count) const {
  Readable readable = ReadableBook(position);
  if (!readable.position) return {};
  const almanac::Planner planner(std::move(readable.book), tables_);
  return almanac::YearsOfRule(planner, *readable.position, tables_, first_year, count);
}

std::vector<PlanChange> BookDraft::Changes(int first_year, int count) const {
  const almanac::Planner before = StoredPlanner();
  const almanac::Planner after = DraftPlanner();
  std::vector<PlanChange> changes;
  for (int year = first_year; year < first_year + count; ++year) {
    if (!before.Reaches(year) || !after.Reaches(year)) continue;
    const auto old_plan = before.Plan(year);
    const auto new_plan = after.Plan(year);
    for (int day = 1; day <= platform::DaysInYear(year); ++day) {
      auto was = NameOn(old_plan, day);
      auto will_be = NameOn(new_plan, day);
      if (was == will_be) continue;
      changes.push_back(
          {year, platform::Date(year, 1, 1).AddDays(day - 1), std::move(was), std::move(will_be)});
    }
  }
  return changes;
}

std::vector<int> BookDraft::YearsLost(int first_year, int count) const {
  return YearsOfOneAlone(StoredPlanner(), DraftPlanner(), first_year, count);
}

std::vector<int> BookDraft::YearsGained(int first_year, int count) const {
  return YearsOfOneAlone(DraftPlanner(), StoredPlanner(), first_year, count);
}

almanac::Planner BookDraft::StoredPlanner() const { return {stored_.value_or(RuleBook{}), tables_}; }

almanac::Planner BookDraft::DraftPlanner() const { return {ReadableBook(0).book, tables_}; }

void BookDraft::Store() {
  WriteTold(platform::ActionKind::kStoreBook, {.currency = currency_.code}, [this] {
    SendAfterLostAnswers();
    return return_value::kDone;
  });
}

void BookDraft::SendAfterLostAnswers() {
  const auto sent = std::exchange(sent_, ReadableBook(0).book);
  try {
    Send();
  } catch (const Refusal& refusal) {
    if (refusal.ReturnValue() != return_value::kContentIsAnother || !sent) throw;
    const auto stored = LoadBook(currency_.id, UnmistakableCode(currency_), tables_);
    if (!stored || stored->book != sent) throw;
    fingerprint_ = stored->fingerprint;
    Send();
  }
}

void BookDraft::Send() const {
  if (IsEmpty()) {
    RemoveBook(currency_.id, UnmistakableCode(currency_), fingerprint_);
  } else {
    StoreBook(currency_.id, UnmistakableCode(currency_), fingerprint_, ReadableBook(0).book);
  }
}

}  // namespace ferrowind::planning
