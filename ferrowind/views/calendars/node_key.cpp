#include "ferrowind/views/calendars/node_key.h"

#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::node_key {
namespace {

constexpr char kSeparator = '_';

std::size_t SeparatorIn(const std::string& key) {
  const auto separator = key.find(kSeparator);
  if (separator == std::string::npos) throw platform::TypeMismatch();
  return separator;
}

}  // namespace

std::string OfCurrency(const std::string& currency_id) { return "K" + currency_id; }

std::string OfCalendar(const std::string& currency_id, const std::string& year) {
  return OfCurrency(currency_id) + kSeparator + year;
}

std::int32_t CurrencyOfCurrencyNode(const std::string& key) {
  if (key.empty()) throw platform::TypeMismatch();
  return platform::ToInt32(key.substr(1));
}

std::int32_t CurrencyOfCalendarNode(const std::string& key) {
  return CurrencyOfCurrencyNode(key.substr(0, SeparatorIn(key)));
}

std::int32_t YearOfCalendarNode(const std::string& key) {
  return platform::ToInt32(key.substr(SeparatorIn(key) + 1));
}

}  // namespace ferrowind::node_key
