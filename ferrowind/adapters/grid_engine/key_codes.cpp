#include "ferrowind/adapters/grid_engine/key_codes.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <string>

#include "ferrowind/adapters/grid_engine/record_sort.h"
#include "ferrowind/adapters/grid_engine/text_codes.h"
#include "ferrowind/adapters/grid_engine/value_order.h"

namespace ferrowind::grid_engine {

using platform::Date;
using platform::Value;

namespace {

constexpr std::uint64_t kSignBit = std::uint64_t{1} << 63U;

/// Whole numbers as unsigned ones of the same order.
std::uint64_t Ordered(std::int64_t amount) { return static_cast<std::uint64_t>(amount) ^ kSignBit; }

/// Fractional numbers as unsigned ones of the same order, not-a-number first.
std::uint64_t Ordered(double amount) {
  if (std::isnan(amount)) return 0;
  const auto bits = std::bit_cast<std::uint64_t>(amount);
  return (bits & kSignBit) != 0 ? ~bits : bits | kSignBit;
}

/// The records whose values are of one kind, with a number for each that keeps their order.
struct KindOfRecords {
  std::vector<std::uint64_t> ordered;
  std::vector<Record> records;

  void Add(std::uint64_t number, Record record) {
    ordered.push_back(number);
    records.push_back(record);
  }
};

class ColumnCoder {
 public:
  ColumnCoder(const KeyValues& values, std::int16_t column, std::uint32_t record_count)
      : values_(values), column_(column) {
    result_.codes.assign(record_count, 0);
  }

  KeyCodes Run() {
    Read();
    // Codes that only mix whole and fractional numbers need one scale for both.
    if (has_fractions_) PutNumbersOnOneScale();
    Assign(numbers_);
    Assign(dates_);
    AssignTexts();
    if (!objects_.records.empty()) Assign(objects_);
    return std::move(result_);
  }

 private:
  void Read() {
    const auto count = static_cast<Record>(result_.codes.size());
    for (Record record = 0; record < count; ++record) {
      const Value& value = values_.KeyValue(column_, record);
      switch (KindOf(value)) {
        case ValueKind::kEmpty:
          break;
        case ValueKind::kNumber: {
          const WholeNumber whole = AsWholeNumber(value);
          has_fractions_ = has_fractions_ || !whole.is_whole;
          numbers_.Add(Ordered(whole.amount), record);
          break;
        }
        case ValueKind::kDate:
          dates_.Add(Ordered(std::int64_t{std::get<Date>(value.Get()).Serial()}), record);
          break;
        case ValueKind::kText:
          texts_.Add(text_codes_.NumberOf(std::get<std::string>(value.Get())), record);
          break;
        case ValueKind::kObject:
          objects_.Add(0, record);
          break;
      }
    }
  }

  void PutNumbersOnOneScale() {
    for (std::size_t i = 0; i < numbers_.records.size(); ++i) {
      numbers_.ordered[i] = Ordered(AsDouble(values_.KeyValue(column_, numbers_.records[i])));
    }
  }

  void AssignTexts() {
    const std::vector<std::uint32_t> places = text_codes_.Places();
    for (std::uint64_t& number : texts_.ordered) number = places[number];
    Assign(texts_);
  }

  /// Gives the records of the kind the codes from `result_.limit` on.
  void Assign(const KindOfRecords& kind) {
    if (kind.records.empty()) return;
    const auto [least, greatest] = std::minmax_element(kind.ordered.begin(), kind.ordered.end());
    // A range a few times as wide as the count costs two bits in the sort; ranking it would cost a sort of
    // its own.
    const std::uint64_t affordable = std::max<std::uint64_t>(std::uint64_t{4} * kind.records.size(), 65536);
    if (*greatest - *least < affordable) {
      const std::uint64_t base = *least;
      for (std::size_t i = 0; i < kind.records.size(); ++i) {
        result_.codes[kind.records[i]] = result_.limit + static_cast<std::uint32_t>(kind.ordered[i] - base);
      }
      result_.limit += static_cast<std::uint32_t>(*greatest - base) + 1;
      return;
    }
    std::uint32_t code = result_.limit;
    std::uint64_t previous = 0;
    bool is_first = true;
    for (const std::uint32_t i : OrderOf(kind.ordered)) {
      if (!is_first && kind.ordered[i] != previous) ++code;
      is_first = false;
      previous = kind.ordered[i];
      result_.codes[kind.records[i]] = code;
    }
    result_.limit = code + 1;
  }

  const KeyValues& values_;
  std::int16_t column_;
  KeyCodes result_;
  KindOfRecords numbers_;
  KindOfRecords dates_;
  KindOfRecords texts_;
  KindOfRecords objects_;
  TextCodes text_codes_;
  bool has_fractions_ = false;
};

}  // namespace

KeyCodes CodesOfColumn(const KeyValues& values, std::int16_t column, std::uint32_t record_count) {
  return ColumnCoder(values, column, record_count).Run();
}

}  // namespace ferrowind::grid_engine
