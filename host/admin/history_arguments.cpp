#include "host/admin/history_arguments.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "ferrowind/platform/values/date.h"

#include "host/admin/procedure_arguments.h"

namespace ferrowind::host {
namespace {

constexpr std::size_t kDateLength = 10;
/// What stands behind a date that ends before any of it.
constexpr std::string_view kMidnight = "00:00:00.000";

bool IsDigit(char character) { return character >= '0' && character <= '9'; }

bool IsLetter(char character) {
  return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z');
}

bool IsNumberUpTo(std::string_view digits, int highest) {
  int number = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  return error == std::errc() && end == digits.data() + digits.size() && number <= highest;
}

/// Whether `time` begins like kMidnight and ends where a part of it does.
bool IsTime(std::string_view time) {
  constexpr std::size_t kMinutesEnd = 5;
  constexpr std::size_t kSecondsEnd = 8;
  if (time.size() > kMidnight.size()) return false;
  const bool is_whole =
      time.size() == kMinutesEnd || time.size() == kSecondsEnd || time.size() > kSecondsEnd + 1;
  if (!is_whole) return false;
  for (std::size_t i = 0; i < time.size(); ++i) {
    if (IsDigit(kMidnight[i]) ? !IsDigit(time[i]) : time[i] != kMidnight[i]) return false;
  }
  return IsNumberUpTo(time.substr(0, 2), 23) && IsNumberUpTo(time.substr(3, 2), 59) &&
         (time.size() == kMinutesEnd || IsNumberUpTo(time.substr(6, 2), 59));
}

}  // namespace

std::string ReadMoment(const std::string& text) {
  const auto refuse = [&]() -> ArgumentError {
    return ArgumentError("\"" + text +
                         "\" is neither a date YYYY-MM-DD nor a date and time YYYY-MM-DDTHH:MM:SS (UTC)");
  };
  const std::string date = text.substr(0, kDateLength);
  if (!platform::Date::FromIso(date)) throw refuse();
  std::string time;
  if (text.size() > kDateLength) {
    if (text[kDateLength] != 'T' && text[kDateLength] != ' ') throw refuse();
    time = text.substr(kDateLength + 1);
    if (time.ends_with('Z')) time.pop_back();
    if (!IsTime(time)) throw refuse();
  }
  return date + "T" + time + std::string(kMidnight.substr(time.size())) + "Z";
}

std::int32_t ReadEntryNumber(const std::string& text) {
  std::int32_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) {
    throw ArgumentError("\"" + text + "\" is no number of an entry of the history");
  }
  return number;
}

CalendarName ReadCalendar(const std::string& text) {
  const auto slash = text.find('/');
  CalendarName calendar;
  calendar.currency = text.substr(0, slash);
  const std::string year = slash == std::string::npos ? std::string() : text.substr(slash + 1);
  const auto [end, error] = std::from_chars(year.data(), year.data() + year.size(), calendar.year);
  const auto consists_of = [&](bool (*is_part)(char)) {
    return !calendar.currency.empty() &&
           std::all_of(calendar.currency.begin(), calendar.currency.end(), is_part);
  };
  if ((!consists_of(IsLetter) && !consists_of(IsDigit)) || year.size() != 4 || !IsDigit(year.front()) ||
      error != std::errc() || end != year.data() + year.size()) {
    throw ArgumentError("\"" + text +
                        "\" names no calendar: write its currency and its year, as in USD/2026");
  }
  for (char& character : calendar.currency) {
    if (character >= 'a') character = static_cast<char>(character - 'a' + 'A');
  }
  return calendar;
}

}  // namespace ferrowind::host
