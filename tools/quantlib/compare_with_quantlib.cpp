// Compares the delivered rule books with QuantLib's calendars for 2015 to 2030: the days from Monday to
// Friday on which one of the two is closed and the other is not. Each such day has to stand, as an ISO date,
// in the section of its currency in the documentation, which says who is right. usage: compare_with_quantlib
// DOCUMENTATION

#include <cstdlib>
#include <exception>
#include <fstream>
#include <functional>
#include <iostream>
#include <iterator>
#include <map>
#include <ql/time/calendars/all.hpp>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ferrowind/almanac/planner.h"

#include "host/delivery/delivered_books.h"
#include "host/delivery/delivered_tables.h"

namespace {

using ferrowind::almanac::PlannedDay;
using ferrowind::almanac::Planner;
using ferrowind::almanac::RuleKind;
using ferrowind::almanac::YearPlan;
using ferrowind::platform::Date;

constexpr int kFirstYear = 2015;
constexpr int kLastYear = 2030;

struct Peer {
  std::string_view currency;
  QuantLib::Calendar calendar;
};

/// The calendar of QuantLib that is nearest to the settlement days of each currency whose days follow from
/// rules.
std::vector<Peer> Peers() {
  using namespace QuantLib;
  return {{"AUD", Australia()},
          {"BRL", Brazil(Brazil::Settlement)},
          {"CAD", Canada(Canada::Settlement)},
          {"CHF", Switzerland()},
          {"CLP", Chile()},
          {"CZK", CzechRepublic()},
          {"DKK", Denmark()},
          {"EUR", TARGET()},
          {"GBP", UnitedKingdom(UnitedKingdom::Settlement)},
          {"HUF", Hungary()},
          {"ISK", Iceland()},
          {"JPY", Japan()},
          {"MXN", Mexico()},
          {"NOK", Norway()},
          {"NZD", NewZealand()},
          {"PLN", Poland()},
          {"RON", Romania(Romania::Public)},
          {"SEK", Sweden()},
          {"USD", UnitedStates(UnitedStates::FederalReserve)},
          {"ZAR", SouthAfrica()}};
}

bool IsClosed(const YearPlan& plan, int day_of_year) {
  const PlannedDay* day = plan.Find(day_of_year);
  return day != nullptr && plan.KindOf(*day) != RuleKind::kWorkingDay;
}

bool IsMondayToFriday(const Date& date) { return date.Weekday() != 1 && date.Weekday() != 7; }

QuantLib::Date ToQuantLib(const Date& date) {
  return {date.Day(), static_cast<QuantLib::Month>(date.Month()), date.Year()};
}

/// The text under "### CCY", up to the next heading; empty when there is no such section.
std::string SectionOf(std::string_view documentation, std::string_view currency) {
  const std::string heading = "\n### " + std::string(currency);
  const std::size_t begin = documentation.find(heading);
  if (begin == std::string_view::npos) {
    return "";
  }
  return std::string(documentation.substr(begin, documentation.find("\n#", begin + heading.size()) - begin));
}

std::string TextOf(const char* path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) {
    throw std::runtime_error(std::string(path) + " cannot be read");
  }
  return {std::istreambuf_iterator<char>(file), {}};
}

struct Count {
  int differences = 0;
  int undocumented = 0;
};

/// Prints each day on which a plan and the calendar differ.
Count Compare(const Peer& peer, const Planner& planner, const std::string& section) {
  Count count;
  for (int year = kFirstYear; year <= kLastYear; ++year) {
    const YearPlan plan = planner.Plan(year);
    for (Date date(year, 1, 1); date.Year() == year; date = date.AddDays(1)) {
      const bool closed = IsClosed(plan, date.DayOfYear());
      if (!IsMondayToFriday(date) || closed == peer.calendar.isHoliday(ToQuantLib(date))) {
        continue;
      }
      const bool documented = section.find(date.ToIso()) != std::string::npos;
      std::cout << peer.currency << ' ' << date.ToIso() << " closed "
                << (closed ? "by the book" : "by QuantLib") << ": " << plan.WhyOf(date.DayOfYear()).InEnglish()
                << (documented ? "" : " (not documented)") << '\n';
      ++count.differences;
      count.undocumented += documented ? 0 : 1;
    }
  }
  return count;
}

int Run(const char* documentation_path) {
  const std::string documentation = TextOf(documentation_path);
  std::map<std::string, Planner, std::less<>> planners;
  for (auto& delivered : ferrowind::host::DeliveredBooks()) {
    planners.emplace(delivered.name,
                     Planner(std::move(delivered.book), ferrowind::host::DeliveredDateTables()));
  }
  Count total;
  int missing = 0;
  for (const Peer& peer : Peers()) {
    const auto planner = planners.find(peer.currency);
    if (planner == planners.end()) {
      std::cout << peer.currency << " has no book\n";
      ++missing;
      continue;
    }
    const Count count = Compare(peer, planner->second, SectionOf(documentation, peer.currency));
    total.differences += count.differences;
    total.undocumented += count.undocumented;
  }
  std::cout << total.differences << " differences, " << total.undocumented << " of them not documented\n";
  return total.undocumented == 0 && missing == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: compare_with_quantlib DOCUMENTATION\n";
    return 2;
  }
  try {
    return Run(argv[1]);
  } catch (const std::exception& failure) {
    std::cerr << "compare_with_quantlib: " << failure.what() << '\n';
    return EXIT_FAILURE;
  }
}
