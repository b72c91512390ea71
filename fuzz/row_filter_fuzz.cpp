// Reads the input as a row filter: whatever it is, it either filters or is refused with its place named,
// twice the same way, and a refused filter leaves the record set as it was.

#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "ferrowind/platform/values/failure.h"
#include "ferrowind/platform/values/record_set.h"
#include "ferrowind/platform/values/row_filter.h"

#include "fuzz/expectation.h"

namespace {

using ferrowind::fuzz::Expect;
using ferrowind::platform::Date;
using ferrowind::platform::Failure;
using ferrowind::platform::RecordRows;
using ferrowind::platform::RecordSet;
using ferrowind::platform::RowFilter;
using ferrowind::platform::Value;

constexpr const char* kOldFilter = "A = NULL or A > 0";

std::shared_ptr<const RecordRows> RowsOfEveryType() {
  using Int64Limits = std::numeric_limits<std::int64_t>;
  using DoubleLimits = std::numeric_limits<double>;
  auto rows = std::make_shared<RecordRows>();
  rows->fields = {"A", "HolidayType", "Del", "a b", "Ä"};
  rows->cells = {
      Value(),
      Value(std::int16_t{1}),
      Value(std::int16_t{2}),
      Value("New Year's Day"),
      Value(Date(2026, 12, 25)),
      Value(Int64Limits::min()),
      Value(DoubleLimits::quiet_NaN()),
      Value(),
      Value(std::string("\0\xFF\xC3", 3)),
      Value(true),
      Value(1.5),
      Value(2.0F),
      Value(std::int32_t{4}),
      Value(""),
      Value(Date(1, 1, 1)),
      Value(Int64Limits::max()),
      Value(DoubleLimits::infinity()),
      Value(Value::Object()),
      Value("ÄPFEL"),
      Value(),
  };
  rows->row_count = rows->cells.size() / rows->fields.size();
  return rows;
}

/// What became of a filter: the rows that pass, or the reason why it is none.
struct Outcome {
  std::optional<std::vector<std::size_t>> passing;
  std::string refusal;

  bool operator==(const Outcome&) const = default;
};

Outcome OutcomeOf(const std::string& text, const RecordRows& rows) {
  try {
    const RowFilter filter(text, rows.fields);
    std::vector<std::size_t> passing;
    for (std::size_t row = 0; row < rows.row_count; ++row) {
      if (filter.Matches(rows, row)) passing.push_back(row);
    }
    return {std::move(passing), {}};
  } catch (const Failure& failure) {
    Expect(failure.Number() == ferrowind::platform::failure_number::kFilterNotUnderstood,
           "a refused filter is the failure 3001");
    return {std::nullopt, failure.Description()};
  }
}

bool NestsTooDeep(const Outcome& outcome) {
  return outcome.refusal.ends_with("parentheses nest more than 100 deep");
}

void ExpectPlaceWithinText(const std::string& refusal, const std::string& text) {
  const std::string before = "The filter \"" + text + "\" is not understood at position ";
  Expect(refusal.starts_with(before), "a refusal quotes the filter");
  const std::size_t place = std::stoul(refusal.substr(before.size()));
  Expect(place >= 1 && place <= text.size() + 1, "a refusal names a place in the filter");
}

std::vector<std::size_t> VisibleRows(const RecordSet& record_set) {
  std::vector<std::size_t> visible;
  for (std::size_t position = 0; position < record_set.RowCount(); ++position) {
    visible.push_back(static_cast<std::size_t>(record_set.BookmarkAt(position)) - 1);
  }
  return visible;
}

void ExpectRecordSetToAgree(const std::string& text, const Outcome& outcome,
                            const std::shared_ptr<const RecordRows>& rows) {
  RecordSet record_set(rows);
  record_set.SetFilter(kOldFilter);
  record_set.MoveNext();
  const auto old_visible = VisibleRows(record_set);
  const auto old_bookmark = record_set.CurrentBookmark();
  try {
    record_set.SetFilter(text);
    Expect(outcome.passing.has_value(), "a record set takes only filters that are understood");
    Expect(record_set.Filter() == text, "a record set keeps its filter as it was written");
    Expect(VisibleRows(record_set) == *outcome.passing, "a record set shows the rows that pass");
    Expect(record_set.Eof() == outcome.passing->empty(), "the cursor stands on the first row that passes");
  } catch (const Failure& failure) {
    Expect(failure.Description() == outcome.refusal, "a record set refuses a filter with the same words");
    Expect(record_set.Filter() == kOldFilter, "a refused filter leaves the old one on");
    Expect(VisibleRows(record_set) == old_visible, "a refused filter leaves the visible rows");
    Expect(record_set.CurrentBookmark() == old_bookmark, "a refused filter leaves the cursor");
  }
}

void ExpectWrappingToKeepTheOutcome(const std::string& text, const Outcome& outcome, const RecordRows& rows) {
  for (const std::string& same : {"(" + text + ")", "(" + text + ") or (" + text + ")",
                                  "(" + text + ") and (" + text + ")", " " + text + "\n"}) {
    const Outcome wrapped = OutcomeOf(same, rows);
    Expect(wrapped == outcome || NestsTooDeep(wrapped), "a filter joined with itself passes the same rows");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const auto rows = RowsOfEveryType();
  const std::string text(data, data + size);
  const Outcome outcome = OutcomeOf(text, *rows);
  Expect(OutcomeOf(text, *rows) == outcome, "a filter is read the same way every time");
  if (outcome.passing) {
    ExpectWrappingToKeepTheOutcome(text, outcome, *rows);
  } else {
    ExpectPlaceWithinText(outcome.refusal, text);
  }
  // An empty text is no filter, but takes the filter of a record set off.
  if (!text.empty()) ExpectRecordSetToAgree(text, outcome, rows);
  return 0;
}
