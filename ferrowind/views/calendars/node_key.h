#pragma once

#include <cstdint>
#include <string>

/// The keys of the tree's nodes, the only link between the tree and the database: "K12" for the currency 12,
/// "K12_2004" for its calendar of 2004. Reading a key that is neither is the failure Type mismatch.
namespace ferrowind::node_key {

[[nodiscard]] std::string OfCurrency(const std::string& currency_id);
[[nodiscard]] std::string OfCalendar(const std::string& currency_id, const std::string& year);

/// The currency of a currency node.
[[nodiscard]] std::int32_t CurrencyOfCurrencyNode(const std::string& key);
/// The currency of a calendar node.
[[nodiscard]] std::int32_t CurrencyOfCalendarNode(const std::string& key);
/// The year of a calendar node.
[[nodiscard]] std::int32_t YearOfCalendarNode(const std::string& key);

}  // namespace ferrowind::node_key
