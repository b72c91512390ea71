// The engine that sorts and groups rows against a standard stable sort that compares the values themselves.

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <numeric>
#include <string>
#include <vector>

#include "ferrowind/adapters/grid_engine/row_arrangement.h"
#include "ferrowind/adapters/grid_engine/value_order.h"

#include "bench/grid_rows.h"
#include "bench/measurement.h"

namespace ferrowind::bench {
namespace {

using grid_engine::ArrangementKey;
using grid_engine::KeyDirection;
using grid_engine::Record;

class RecordValues final : public grid_engine::KeyValues {
 public:
  explicit RecordValues(std::shared_ptr<platform::RecordSet> records) : records_(std::move(records)) {}

  [[nodiscard]] const platform::Value& KeyValue(std::int16_t column, Record record) const override {
    return records_->Cell(static_cast<platform::RecordSet::Bookmark>(record + 1),
                          static_cast<std::size_t>(column) - 1);
  }
  [[nodiscard]] std::uint32_t Count() const { return static_cast<std::uint32_t>(records_->RowCount()); }

 private:
  std::shared_ptr<platform::RecordSet> records_;
};

constexpr std::array kGroups{ArrangementKey{kDealDesk, KeyDirection::kAscending},
                             ArrangementKey{kDealCurrency, KeyDirection::kAscending}};
constexpr std::array kSorts{ArrangementKey{kDealClient, KeyDirection::kAscending},
                            ArrangementKey{kDealAmount, KeyDirection::kDescending}};

std::vector<Record> SortedByComparing(const RecordValues& values) {
  std::vector<Record> order(values.Count());
  std::iota(order.begin(), order.end(), Record{0});
  std::stable_sort(order.begin(), order.end(), [&](Record left, Record right) {
    for (const auto keys :
         {std::span<const ArrangementKey>(kGroups), std::span<const ArrangementKey>(kSorts)}) {
      for (const ArrangementKey& key : keys) {
        const int compared =
            grid_engine::CompareValues(values.KeyValue(key.column, left), values.KeyValue(key.column, right));
        if (compared != 0) return (compared < 0) == (key.direction == KeyDirection::kAscending);
      }
    }
    return false;
  });
  return order;
}

void Run(const Benchmark& benchmark) {
  struct Size {
    std::size_t rows;
    double limit;
  };
  for (const auto [rows, limit] : {Size{366, 0.8}, Size{100000, 0.2}, Size{1000000, 0.1}}) {
    const RecordValues values(DealRows(rows));
    benchmark.Compare("grid engine: sort and group " + std::to_string(rows) + " rows by four keys", limit,
                      {[&] {
                        grid_engine::RowArrangement arrangement(values);
                        arrangement.SetRecords(values.Count());
                        arrangement.Arrange(kGroups, kSorts);
                        KeepResult(arrangement.RecordAt(values.Count() / 2));
                      }},
                      {[&] { KeepResult(SortedByComparing(values)[values.Count() / 2]); }},
                      rows > 100000 ? 1 : Benchmark::kRuns);
  }
}

}  // namespace
}  // namespace ferrowind::bench

int main(int argc, char** argv) { return ferrowind::bench::RunBenchmark(argc, argv, ferrowind::bench::Run); }
