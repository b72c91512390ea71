#include "ferrowind/planning/local_moment.h"

#include <array>
#include <charconv>
#include <chrono>
#include <cstddef>
#include <ctime>
#include <optional>
#include <string_view>

#include "ferrowind/platform/values/date.h"

namespace ferrowind::planning {
namespace {

constexpr std::string_view kForm = "YYYY-MM-DDTHH:MM:SS";

std::optional<int> NumberAt(std::string_view text, std::size_t place) {
  int number = 0;
  const std::string_view digits = text.substr(place, 2);
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  if (error != std::errc() || end != digits.data() + digits.size()) return std::nullopt;
  return number;
}

std::optional<std::time_t> TimeOf(std::string_view moment) {
  if (moment.size() < kForm.size() || moment[10] != 'T') return std::nullopt;
  const auto date = platform::Date::FromIso(moment.substr(0, 10));
  const auto hour = NumberAt(moment, 11);
  const auto minute = NumberAt(moment, 14);
  const auto second = NumberAt(moment, 17);
  if (!date || !hour || !minute || !second) return std::nullopt;
  using namespace std::chrono;
  const sys_days day = year(date->Year()) / date->Month() / date->Day();
  return system_clock::to_time_t(day + hours(*hour) + minutes(*minute) + seconds(*second));
}

}  // namespace

std::string LocalMoment(const std::string& moment) {
  const auto time = TimeOf(moment);
  const std::tm* const local = time ? std::localtime(&*time) : nullptr;
  if (local == nullptr) return moment;
  std::array<char, 64> text{};
  const std::size_t size = std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M:%S", local);
  return {text.data(), size};
}

}  // namespace ferrowind::planning
