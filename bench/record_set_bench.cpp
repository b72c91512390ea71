// Filtering a record set against the loop that one would write by hand for that one filter, and cloning a
// large record set against cloning a small one.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "ferrowind/platform/values/record_set.h"

#include "bench/measurement.h"

namespace {

using ferrowind::bench::Benchmark;
using ferrowind::bench::KeepResult;
using ferrowind::platform::RecordRows;
using ferrowind::platform::RecordSet;
using ferrowind::platform::Value;

constexpr std::size_t kTypeField = 2;
constexpr std::size_t kRemovedField = 8;

std::shared_ptr<const RecordRows> HolidayRules(std::size_t count) {
  auto rows = std::make_shared<RecordRows>();
  rows->fields = {"Name1", "D1", "HolidayType", "Comment", "MD", "MY", "ID2", "WD", "Del"};
  rows->row_count = count;
  rows->cells.reserve(count * rows->fields.size());
  for (std::size_t row = 0; row < count; ++row) {
    const auto number = static_cast<std::int32_t>(row);
    // Scrambled, so that no branch predictor learns the rows by heart.
    const std::uint32_t random = static_cast<std::uint32_t>(row) * 2654435761U >> 16;
    const auto type = static_cast<std::int16_t>(1 + random % 4);
    const bool was_touched = random % 3 != 0;
    rows->cells.emplace_back("Rule number " + std::to_string(row));
    rows->cells.emplace_back(ferrowind::platform::Date::FromSerial(40000 + number % 3000));
    rows->cells.emplace_back(type);
    if (row % 2 == 0) {
      rows->cells.emplace_back("A comment of some length");
    } else {
      rows->cells.emplace_back();
    }
    rows->cells.emplace_back(static_cast<std::int16_t>(1 + row % 31));
    rows->cells.emplace_back(static_cast<std::int16_t>(1 + row % 12));
    rows->cells.emplace_back(number);
    rows->cells.emplace_back(static_cast<std::int16_t>(1 + row % 7));
    if (was_touched) {
      rows->cells.emplace_back(static_cast<std::int16_t>(random % 5 == 0 ? 2 : 4));
    } else {
      rows->cells.emplace_back();
    }
  }
  return rows;
}

std::vector<std::int32_t> VisibleByHand(const RecordRows& rows) {
  std::vector<std::int32_t> visible;
  for (std::size_t row = 0; row < rows.row_count; ++row) {
    const auto* const type = rows.Cell(row, kTypeField).If<std::int16_t>();
    if (type == nullptr || *type == 1) continue;
    const Value& removed = rows.Cell(row, kRemovedField);
    const auto* const mark = removed.If<std::int16_t>();
    if (removed.IsEmpty() || (mark != nullptr && *mark != 2))
      visible.push_back(static_cast<std::int32_t>(row));
  }
  return visible;
}

void MeasureFilter(const Benchmark& benchmark) {
  const std::string filter = "(Del <> 2 and HolidayType <> 1) or (Del = NULL and HolidayType <> 1)";
  const auto rows = HolidayRules(100'000);
  RecordSet record_set(rows);
  benchmark.Compare("record set filter, 100,000 rows", 5, {[&] {
                      record_set.SetFilter(filter);
                      KeepResult(record_set.RowCount());
                    }},
                    {[&] { KeepResult(VisibleByHand(*rows).size()); }}, 51);
  if (record_set.RowCount() != VisibleByHand(*rows).size()) {
    throw std::logic_error("the filter and the loop do not show the same rows");
  }
}

void MeasureClone(const Benchmark& benchmark) {
  const RecordSet large(HolidayRules(1'000'000));
  const RecordSet small(HolidayRules(100));
  const auto clones_of = [](const RecordSet& original) {
    return [&original] {
      for (int clone = 0; clone < 100'000; ++clone) KeepResult(original.Clone()->RowCount());
    };
  };
  benchmark.Compare("100,000 clones of 1,000,000 rows, peer: of 100 rows", 2, {clones_of(large)},
                    {clones_of(small)});
}

}  // namespace

int main(int argc, char** argv) {
  return ferrowind::bench::RunBenchmark(argc, argv, [](const Benchmark& benchmark) {
    MeasureFilter(benchmark);
    MeasureClone(benchmark);
  });
}
