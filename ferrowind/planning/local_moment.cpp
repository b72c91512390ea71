#include "ferrowind/planning/local_moment.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cstddef>
#include <ctime>
#include <optional>
#include <string_view>
#include <tuple>

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
  const sys_seconds time = day + hours(*hour) + minutes(*minute) + seconds(*second);
  return static_cast<std::time_t>(time.time_since_epoch().count());
}

/// When the clock shows that, with daylight saving in force or not; nothing when it does not.
std::optional<std::time_t> TimeOf(const LocalTime& shown, int is_summer) {
  constexpr int kFirstYearOfTm = 1900;
  std::tm wanted{};
  wanted.tm_year = shown.day.Year() - kFirstYearOfTm;
  wanted.tm_mon = shown.day.Month() - 1;
  wanted.tm_mday = shown.day.Day();
  wanted.tm_hour = shown.hour;
  wanted.tm_min = shown.minute;
  wanted.tm_sec = shown.second;
  wanted.tm_isdst = is_summer;
  std::tm normal = wanted;
  const std::time_t time = std::mktime(&normal);
  const std::tm* const back = std::localtime(&time);
  const auto clock_of = [](const std::tm& each) {
    return std::tuple(each.tm_year, each.tm_mon, each.tm_mday, each.tm_hour, each.tm_min, each.tm_sec);
  };
  if (back == nullptr || clock_of(*back) != clock_of(wanted)) return std::nullopt;
  return time;
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

std::optional<std::string> MomentOf(const LocalTime& time) {
  // An empty one is less than any time.
  const auto found = std::max(TimeOf(time, 0), TimeOf(time, 1));
  const std::tm* const utc = found ? std::gmtime(&*found) : nullptr;
  if (utc == nullptr) return std::nullopt;
  std::array<char, 64> text{};
  const std::size_t size = std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%S.999Z", utc);
  return std::string(text.data(), size);
}

}  // namespace ferrowind::planning
