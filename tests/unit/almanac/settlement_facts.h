#pragma once

#include <iosfwd>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "ferrowind/platform/values/date.h"

/// What publishers say of a currency's settlement days, as the files beside this header hold it. Reading
/// fails the running test with the file and the line that is no such text.
namespace ferrowind::testing {

/// The days of a year that are not what their weekday says.
struct PublishedYear {
  /// Days on which the currency does not settle though no weekend makes it so; ascending, as ISO dates.
  std::vector<std::string> closed;
  /// Days of weekends on which it settles; ascending, as ISO dates.
  std::vector<std::string> opened;

  bool operator==(const PublishedYear&) const = default;
};

/// For gtest's messages.
void PrintTo(const PublishedYear& year, std::ostream* out);

/// published_lists/CCY.txt: a line a year, `2026 01-01 12-25`; dates after the word `open` are days of
/// weekends on which the currency settles. Lines that begin with "#" name the publications.
[[nodiscard]] std::map<int, PublishedYear> PublishedYears(std::string_view currency);

struct HistoricDay {
  platform::Date date;
  bool closed = false;
  std::string reason;
};

/// settlement_history/CCY.txt: `2018-12-05 open national day of mourning`.
[[nodiscard]] std::vector<HistoricDay> HistoricDays(std::string_view currency);

struct NamedDay {
  std::string currency;
  platform::Date date;
  /// "celebration" or "point".
  std::string kind;
  std::string name;
  std::string comment;
};

/// first_delivered_days.txt: `EUR 2026-01-01 celebration | New Year's Day | 1 January`.
[[nodiscard]] std::vector<NamedDay> FirstDeliveredDays();

}  // namespace ferrowind::testing
