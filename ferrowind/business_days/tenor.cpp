#include "ferrowind/business_days/tenor.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <system_error>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::business_days {
namespace {

using Unit = Tenor::Unit;

struct Word {
  std::string_view text;
  Tenor tenor;
};

/// What a tenor is written as comes before what it may be written as, too.
constexpr std::array kWords = {
    Word{"ON", {Unit::kOvernight, 1}},  Word{"TN", {Unit::kTomorrowNext, 1}},
    Word{"SPOT", {Unit::kSpot, 1}},     Word{"SN", {Unit::kSpotNext, 1}},
    Word{"IMM1", {Unit::kImm, 1}},      Word{"IMM2", {Unit::kImm, 2}},
    Word{"IMM3", {Unit::kImm, 3}},      Word{"IMM4", {Unit::kImm, 4}},
    Word{"O/N", {Unit::kOvernight, 1}}, Word{"T/N", {Unit::kTomorrowNext, 1}},
    Word{"S/N", {Unit::kSpotNext, 1}},  Word{"SP", {Unit::kSpot, 1}},
    Word{"SW", {Unit::kWeeks, 1}},      Word{"S/W", {Unit::kWeeks, 1}},
};

struct Period {
  char letter;
  Unit unit;
  /// A hundred years.
  int most;
};

constexpr std::array kPeriods = {Period{'D', Unit::kDays, 36525}, Period{'W', Unit::kWeeks, 5217},
                                 Period{'M', Unit::kMonths, 1200}, Period{'Y', Unit::kYears, 100}};

char Capital(char letter) {
  return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

std::optional<Tenor> PeriodIn(std::string_view text) {
  if (text.empty()) return std::nullopt;
  const auto period = std::ranges::find(kPeriods, text.back(), &Period::letter);
  if (period == kPeriods.end()) return std::nullopt;
  const char* end = text.data() + text.size() - 1;
  int count = 0;
  const auto [read_to, error] = std::from_chars(text.data(), end, count);
  const Tenor tenor{period->unit, count};
  if (error != std::errc() || read_to != end || !IsTenor(tenor)) return std::nullopt;
  return tenor;
}

}  // namespace

std::string Tenor::Text() const {
  const auto period = std::ranges::find(kPeriods, unit, &Period::unit);
  if (period != kPeriods.end()) return std::to_string(count) + period->letter;
  return std::string(std::ranges::find(kWords, *this, &Word::tenor)->text);
}

Tenor ReadTenor(std::string_view text) {
  std::string capitals(text);
  std::ranges::transform(capitals, capitals.begin(), Capital);
  const auto word = std::ranges::find(kWords, capitals, &Word::text);
  if (word != kWords.end()) return word->tenor;
  if (const auto period = PeriodIn(capitals)) return *period;
  throw platform::Failure(
      platform::failure_number::kInvalidArgument,
      '"' + std::string(text) +
          "\" is no tenor: ON, TN, SPOT, SN, SW, IMM1 to IMM4, or a number of days, weeks, "
          "months or years up to 100 years, as 10D, 2W, 3M, 1Y");
}

bool IsTenor(const Tenor& tenor) {
  const auto period = std::ranges::find(kPeriods, tenor.unit, &Period::unit);
  if (period != kPeriods.end()) return tenor.count >= 1 && tenor.count <= period->most;
  return std::ranges::find(kWords, tenor, &Word::tenor) != kWords.end();
}

}  // namespace ferrowind::business_days
