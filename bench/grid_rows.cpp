#include "bench/grid_rows.h"

#include <array>
#include <cstdint>
#include <random>
#include <string>
#include <utility>

namespace ferrowind::bench {

using platform::Date;
using platform::RecordRows;
using platform::RecordSet;

std::shared_ptr<RecordSet> DealRows(std::size_t count) {
  auto rows = std::make_shared<RecordRows>();
  rows->fields = {"ODate",  "Desk",   "Ccy",    "Client",  "Amount",  "Rate",
                  "Status", "Trader", "Branch", "Comment", "Product", "ID"};
  rows->row_count = count;
  rows->cells.reserve(count * rows->fields.size());
  constexpr std::array kDesks{"Spot",     "Forward", "Swap",    "Options",
                              "Treasury", "Custody", "Funding", "Metals"};
  constexpr std::array kCurrencies{"EUR", "USD", "GBP", "JPY", "CHF", "SEK", "NOK", "DKK", "PLN", "CZK",
                                   "HUF", "CAD", "AUD", "NZD", "SGD", "HKD", "ZAR", "MXN", "TRY", "ILS"};
  std::mt19937 random(20260101);
  for (std::size_t row = 0; row < count; ++row) {
    rows->cells.emplace_back(Date::FromSerial(45000 + static_cast<std::int32_t>(random() % 730)));
    rows->cells.emplace_back(kDesks[random() % kDesks.size()]);
    rows->cells.emplace_back(kCurrencies[random() % kCurrencies.size()]);
    rows->cells.emplace_back("Client number " + std::to_string(random() % 5000));
    rows->cells.emplace_back(static_cast<double>(random() % 100000000) / 100);
    rows->cells.emplace_back(1.0 + static_cast<double>(random() % 10000) / 10000);
    rows->cells.emplace_back(static_cast<std::int16_t>(random() % 4));
    rows->cells.emplace_back("Trader " + std::to_string(random() % 40));
    rows->cells.emplace_back(static_cast<std::int32_t>(random() % 300));
    if (random() % 3 == 0) {
      rows->cells.emplace_back("Confirmed by telephone");
    } else {
      rows->cells.emplace_back();
    }
    rows->cells.emplace_back(static_cast<std::int32_t>(random() % 25));
    rows->cells.emplace_back(static_cast<std::int32_t>(row));
  }
  return std::make_shared<RecordSet>(std::move(rows));
}

}  // namespace ferrowind::bench
