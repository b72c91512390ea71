#pragma once

#include <cstdlib>
#include <ctime>
#include <optional>
#include <string>

namespace ferrowind::planning {

/// This program's clock is in that time zone as long as this lives.
class TimeZone {
 public:
  explicit TimeZone(const char* zone) {
    if (const char* const old = std::getenv("TZ")) old_ = old;
    Set(zone);
  }
  ~TimeZone() { Set(old_ ? old_->c_str() : nullptr); }
  TimeZone(const TimeZone&) = delete;
  TimeZone& operator=(const TimeZone&) = delete;

 private:
  static void Set(const char* zone) {
#ifdef _WIN32
    // An empty value takes the variable away.
    _putenv_s("TZ", zone != nullptr ? zone : "");
#else
    if (zone != nullptr) {
      setenv("TZ", zone, 1);
    } else {
      unsetenv("TZ");
    }
#endif
    tzset();
  }

  std::optional<std::string> old_;
};

}  // namespace ferrowind::planning
