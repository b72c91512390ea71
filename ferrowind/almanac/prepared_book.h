#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "ferrowind/almanac/date_table.h"
#include "ferrowind/almanac/prepared_base.h"
#include "ferrowind/almanac/rule_book.h"

namespace ferrowind::almanac {

/// A book whose rules are sorted by what planning does with them. Rules are positions in the book's list.
class PreparedBook {
 public:
  struct Rule {
    PreparedBase base;
    std::uint32_t position;
    bool opens;
  };
  /// A rule of which not all years are known.
  struct TableRule {
    std::size_t position;
    /// In `dated`.
    std::size_t rule;
    /// Empty when the book says itself that the dates are unknown.
    std::string table;
    int first_year;
    int last_year;
  };

  /// A table that a rule names and that is missing knows no year.
  PreparedBook(RuleBook book, const DateTables& tables);

  [[nodiscard]] const std::shared_ptr<const RuleBook>& Book() const { return book_; }
  [[nodiscard]] const DateExpression& ExpressionOf(std::uint32_t position) const {
    return book_->rules[position].expression;
  }

  /// Those with dates of their own, in the order of the book.
  [[nodiscard]] const std::vector<Rule>& Dated() const { return dated_; }
  [[nodiscard]] const std::vector<std::uint32_t>& Weekly() const { return weekly_; }
  [[nodiscard]] const std::vector<std::uint32_t>& Between() const { return between_; }
  [[nodiscard]] const std::vector<TableRule>& OfTables() const { return of_tables_; }

 private:
  void Prepare(std::uint32_t position, const DateTables& tables);

  std::shared_ptr<const RuleBook> book_;
  std::vector<Rule> dated_;
  std::vector<std::uint32_t> weekly_;
  std::vector<std::uint32_t> between_;
  std::vector<TableRule> of_tables_;
};

}  // namespace ferrowind::almanac
