// Asks the input as lines of questions of fixed calendars, as text and as JSON: whatever a line is, it has an
// answer of one line in UTF-8, or one of JSON, and the calendars answer the next one.

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>

#include "ferrowind/business_days/business_calendar.h"
#include "ferrowind/business_days/calendar_set.h"
#include "ferrowind/business_days/market_conventions.h"
#include "ferrowind/loading/loaded_days.h"
#include "ferrowind/platform/values/utf8_validation.h"

#include "fuzz/expectation.h"
#include "host/admin/date_line.h"

namespace {

using ferrowind::business_days::BusinessCalendar;
using ferrowind::business_days::CalendarSet;
using ferrowind::business_days::ReadMarketConventions;
using ferrowind::fuzz::Expect;
using ferrowind::host::AnswerDateLine;
using ferrowind::host::AnswerFormat;
using ferrowind::host::DateAnswering;
using ferrowind::loading::LoadedDays;

/// Closed on each day whose number leaves that rest when it is divided by seven, and on the one behind it.
std::string Weekends(std::size_t days, std::size_t rest) {
  std::string text(days, '0');
  for (std::size_t day = 0; day < days; ++day) {
    if (day % 7 == rest || (day + 6) % 7 == rest) text[day] = '1';
  }
  return text;
}

/// With a hole between years, other weekends, and a year in which everything is closed.
LoadedDays FixedDays() {
  using std::chrono::year;
  return {CalendarSet(
              {BusinessCalendar("EUR", {{year(2026), Weekends(365, 2)}, {year(2027), Weekends(365, 1)}}),
               BusinessCalendar("ILS", {{year(2026), Weekends(365, 1)}, {year(2028), Weekends(366, 6)}}),
               BusinessCalendar("JPY", {{year(2026), std::string(365, '1')}}),
               BusinessCalendar("USD", {{year(2026), Weekends(365, 2)}, {year(2027), Weekends(365, 1)}})}),
          ReadMarketConventions("spot EUR/ILS 1\ndollar-holiday-stops ILS\n")};
}

void ExpectAnswer(const std::string& line, const LoadedDays& days, const DateAnswering& answering) {
  const std::string text = AnswerDateLine(line, days, answering, AnswerFormat::kText);
  Expect(!text.empty() && text.find('\n') == std::string::npos, "an answer is one line");
  Expect(ferrowind::platform::IsWellFormedUtf8(text), "an answer is UTF-8");
  const std::string json = AnswerDateLine(line, days, answering, AnswerFormat::kJson);
  Expect(json.find('\n') == std::string::npos, "an object is one line");
  const auto object = nlohmann::json::parse(json, nullptr, false);
  Expect(object.is_object() && object.contains("answer") != object.contains("error"),
         "an object has an answer or an error");
  Expect(object.contains("error") == text.starts_with("error: "),
         "both ways of writing have the same answer");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const LoadedDays days = FixedDays();
  std::istringstream lines(std::string(reinterpret_cast<const char*>(data), size));
  // Each is answered four times, which takes longer than the lines take to change.
  constexpr int kMostLines = 8;
  for (int asked = 0; asked < kMostLines; ++asked) {
    const auto line = ferrowind::host::NextDateLine(lines);
    if (!line) break;
    ExpectAnswer(*line, days, {.tells_why = asked % 2 == 0});
    ExpectAnswer(
        *line, days,
        {.tells_why = false, .closed_trade_date = ferrowind::business_days::ClosedTradeDate::kStays});
  }
  return 0;
}
