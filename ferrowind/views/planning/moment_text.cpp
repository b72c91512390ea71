#include "ferrowind/views/planning/moment_text.h"

#include "ferrowind/planning/local_moment.h"
#include "ferrowind/platform/values/date.h"

namespace ferrowind {

std::string MomentText(const platform::Locale& locale, const std::string& moment) {
  constexpr std::size_t kDateLength = 10;
  constexpr std::size_t kTimeLength = 5;
  const std::string local = planning::LocalMoment(moment);
  const auto date = platform::Date::FromIso(local.substr(0, kDateLength));
  if (!date || local.size() < kDateLength + 1 + kTimeLength) return local;
  return locale.DateText(*date) + " " + local.substr(kDateLength + 1, kTimeLength);
}

}  // namespace ferrowind
