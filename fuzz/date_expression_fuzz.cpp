// Reads the input as a date expression: whatever it is, it is either refused with its place named, or its
// normal form means the same, and its dates are within the year asked for.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "ferrowind/almanac/base_dates.h"
#include "ferrowind/almanac/date_expression.h"
#include "ferrowind/almanac/expression_error.h"
#include "ferrowind/platform/values/utf8_validation.h"

#include "fuzz/expectation.h"

namespace {

using ferrowind::almanac::DateExpression;
using ferrowind::almanac::DateTables;
using ferrowind::almanac::ExpressionError;
using ferrowind::fuzz::Expect;
using ferrowind::platform::Date;

std::optional<DateExpression> TryParse(std::string_view text) {
  try {
    return DateExpression::Parse(text);
  } catch (const ExpressionError& error) {
    Expect(error.Place() >= 1 && error.Place() <= text.size() + 1, "a refusal names a place in the text");
    Expect(!error.Expectation().IsEmpty(), "a refusal says what is expected");
    Expect(ferrowind::platform::IsWellFormedUtf8(error.Description()), "a refusal is UTF-8");
    return std::nullopt;
  }
}

DateTables Tables() {
  DateTables tables;
  tables.Add({"a", 2025, 2027, {Date(2025, 1, 1), Date(2025, 12, 31), Date(2026, 6, 1)}});
  return tables;
}

void ExpectDatesWithinTheYear(const DateExpression& expression, int year) {
  static const DateTables tables = Tables();
  std::optional<Date> last;
  for (const Date& date : BaseDates(expression, year, tables)) {
    Expect(date.Year() == year, "a base date is within its year");
    Expect(!last || *last < date, "base dates ascend");
    Expect(expression.years.Include(year), "a base date is in a year of the expression");
    last = date;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  const auto expression = TryParse(input);
  if (!expression) return 0;
  const std::string normal_form = expression->ToText();
  const auto again = TryParse(normal_form);
  Expect(again.has_value(), "a normal form is an expression");
  Expect(*again == *expression, "a normal form means the same");
  Expect(again->ToText() == normal_form, "a normal form stays as it is");
  for (const int year : {1900, 2026, 2028, 2199}) ExpectDatesWithinTheYear(*expression, year);
  return 0;
}
