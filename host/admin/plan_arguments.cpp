#include "host/admin/plan_arguments.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include "host/admin/procedure_arguments.h"

namespace ferrowind::host {
namespace {

std::optional<int> YearIn(const std::string& text) {
  constexpr std::size_t kDigits = 4;
  const bool is_year = text.size() == kDigits && std::all_of(text.begin(), text.end(), [](char character) {
                         return character >= '0' && character <= '9';
                       });
  if (!is_year) return std::nullopt;
  return std::stoi(text);
}

}  // namespace

int ReadYear(const std::string& text) {
  const std::optional<int> year = YearIn(text);
  if (!year) throw ArgumentError("\"" + text + "\" is no year, which has four digits");
  return *year;
}

YearRange ReadYears(const std::string& text) {
  const auto dots = text.find("..");
  const auto between = dots != std::string::npos ? dots : text.find('-');
  const std::size_t signs = dots != std::string::npos ? 2 : 1;
  const std::optional<int> first = YearIn(text.substr(0, between));
  const std::optional<int> last = between == std::string::npos ? first : YearIn(text.substr(between + signs));
  if (!first || !last) {
    throw ArgumentError("\"" + text + "\" is neither a year, as 2028, nor years, as 2028..2030");
  }
  if (*last < *first) throw ArgumentError("The years \"" + text + "\" run backwards");
  return {*first, *last};
}

platform::Date ReadDay(const std::string& text) {
  const std::optional<platform::Date> day = platform::Date::FromIso(text);
  if (!day) throw ArgumentError("\"" + text + "\" is no date YYYY-MM-DD");
  return *day;
}

}  // namespace ferrowind::host
