#include "ferrowind/planning/moment_text.h"

#include <cstddef>
#include <string_view>

#include "ferrowind/planning/local_moment.h"
#include "ferrowind/platform/values/date.h"

namespace ferrowind::planning {
namespace {

constexpr std::string_view kMinutes = "HH:MM";
constexpr std::string_view kSeconds = "HH:MM:SS";

std::string Told(const platform::Locale& locale, const std::string& moment, std::size_t length_of_time) {
  constexpr std::size_t kDateLength = 10;
  const std::string local = LocalMoment(moment);
  const auto date = platform::Date::FromIso(local.substr(0, kDateLength));
  if (!date || local.size() != kDateLength + 1 + kSeconds.size()) return local;
  return locale.DateText(*date) + " " + local.substr(kDateLength + 1, length_of_time);
}

}  // namespace

std::string MomentText(const platform::Locale& locale, const std::string& moment) {
  return Told(locale, moment, kMinutes.size());
}

std::string ExactMomentText(const platform::Locale& locale, const std::string& moment) {
  return Told(locale, moment, kSeconds.size());
}

}  // namespace ferrowind::planning
