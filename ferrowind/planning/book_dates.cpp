#include "ferrowind/planning/book_dates.h"

#include "ferrowind/almanac/date_expression.h"
#include "ferrowind/planning/book_store.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::planning {
namespace {

almanac::RuleBook With(almanac::RuleBook book, const std::vector<DatedHoliday>& holidays) {
  for (const DatedHoliday& holiday : holidays) {
    book.rules.push_back({.name = holiday.name,
                          .kind = holiday.kind,
                          .expression = almanac::DateExpression::Parse(holiday.date.ToIso()),
                          .comment = {},
                          .moved_name = {}});
  }
  return book;
}

}  // namespace

std::optional<std::string> BookDates::Enter(const Currency& currency,
                                            const std::vector<DatedHoliday>& holidays) {
  try {
    if (!shelf_) shelf_.emplace(tables_);
    const StoredBook& stored = shelf_->Get(currency);
    if (!stored.book) return stored.faults.front();
    const PlacedBook placed{.currency = currency, .book = With(*stored.book, holidays)};
    if (const auto faults = shelf_->FaultsWith({placed}); !faults.empty()) return faults.front();
    StoreBook(currency.id, UnmistakableCode(currency), stored.fingerprint, placed.book);
  } catch (const platform::Failure& failure) {
    return failure.Description();
  }
  return std::nullopt;
}

}  // namespace ferrowind::planning
