#include "ferrowind/adapters/services/system_clock.h"

#include <ctime>

namespace ferrowind {

platform::Date SystemClock::Today() const {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
#ifdef _WIN32
  localtime_s(&local, &now);
#else
  localtime_r(&now, &local);
#endif
  constexpr int kFirstYearOfTm = 1900;
  return {local.tm_year + kFirstYearOfTm, local.tm_mon + 1, local.tm_mday};
}

}  // namespace ferrowind
