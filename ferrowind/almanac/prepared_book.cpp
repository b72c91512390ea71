#include "ferrowind/almanac/prepared_book.h"

#include <utility>
#include <variant>

namespace ferrowind::almanac {

PreparedBook::PreparedBook(RuleBook book, const DateTables& tables)
    : book_(std::make_shared<const RuleBook>(std::move(book))) {
  for (std::uint32_t position = 0; position < book_->rules.size(); ++position) Prepare(position, tables);
}

void PreparedBook::Prepare(std::uint32_t position, const DateTables& tables) {
  const BookRule& rule = book_->rules[position];
  if (rule.expression.IsBetween()) {
    between_.push_back(position);
  } else if (rule.expression.IsEveryWeekday() && rule.kind != RuleKind::kWorkingDay) {
    weekly_.push_back(position);
  } else {
    if (const auto* named = std::get_if<TableDate>(&rule.expression.anchor)) {
      const DateTable* table = tables.Find(named->table);
      of_tables_.push_back({position, dated_.size(), named->table, table == nullptr ? 0 : table->first_year,
                            table == nullptr ? 0 : table->last_year});
    }
    if (rule.expression.IsUnknown()) of_tables_.push_back({position, dated_.size(), {}, 0, 0});
    dated_.push_back({PreparedBase(rule.expression, tables), position, rule.kind == RuleKind::kWorkingDay});
  }
}

}  // namespace ferrowind::almanac
