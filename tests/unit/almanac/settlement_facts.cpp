#include "tests/unit/almanac/settlement_facts.h"

#include <fstream>
#include <optional>
#include <ostream>
#include <sstream>
#include <utility>

#include <gtest/gtest.h>

namespace ferrowind::testing {
namespace {

/// The lines of a file of this folder that say something, each with its place for messages.
class FactLines {
 public:
  explicit FactLines(const std::string& file)
      : file_(file), stream_(std::string(FERROWIND_SETTLEMENT_FACTS) + "/" + file) {
    EXPECT_TRUE(stream_.is_open()) << file << " cannot be read";
  }

  [[nodiscard]] bool Next(std::string& line) {
    while (std::getline(stream_, line)) {
      ++number_;
      if (!line.empty() && line.front() != '#') {
        return true;
      }
    }
    return false;
  }

  void Refuse(std::string_view what) const { ADD_FAILURE() << file_ << ", line " << number_ << ": " << what; }

 private:
  std::string file_;
  std::ifstream stream_;
  int number_ = 0;
};

std::string FileOf(std::string_view folder, std::string_view currency) {
  return std::string(folder) + "/" + std::string(currency) + ".txt";
}

std::string Rest(std::istringstream& words) {
  std::string rest;
  std::getline(words >> std::ws, rest);
  return rest;
}

}  // namespace

void PrintTo(const PublishedYear& year, std::ostream* out) {
  *out << "closed " << ::testing::PrintToString(year.closed) << ", open "
       << ::testing::PrintToString(year.opened);
}

std::map<int, PublishedYear> PublishedYears(std::string_view currency) {
  FactLines lines(FileOf("published_lists", currency));
  std::map<int, PublishedYear> years;
  std::string line;
  while (lines.Next(line)) {
    std::istringstream words(line);
    std::string year;
    words >> year;
    PublishedYear published;
    std::vector<std::string>* dates = &published.closed;
    for (std::string word; words >> word;) {
      if (word == "open") {
        dates = &published.opened;
      } else if (const std::string date = year + "-" + word; platform::Date::FromIso(date)) {
        dates->push_back(date);
      } else {
        lines.Refuse(date + " is no date");
      }
    }
    if (!years.emplace(std::stoi(year), std::move(published)).second) {
      lines.Refuse("the year stands there twice");
    }
  }
  return years;
}

std::vector<HistoricDay> HistoricDays(std::string_view currency) {
  FactLines lines(FileOf("settlement_history", currency));
  std::vector<HistoricDay> days;
  std::string line;
  while (lines.Next(line)) {
    std::istringstream words(line);
    std::string date;
    std::string state;
    words >> date >> state;
    const std::optional<platform::Date> day = platform::Date::FromIso(date);
    if (!day || (state != "open" && state != "closed")) {
      lines.Refuse("a date, then open or closed is expected");
      continue;
    }
    days.push_back({*day, state == "closed", Rest(words)});
  }
  return days;
}

std::vector<NamedDay> FirstDeliveredDays() {
  FactLines lines("first_delivered_days.txt");
  std::vector<NamedDay> days;
  std::string line;
  while (lines.Next(line)) {
    std::istringstream words(line);
    std::string currency;
    std::string date;
    std::string kind;
    std::string bar;
    words >> currency >> date >> kind >> bar;
    const std::string name_and_comment = Rest(words);
    const std::size_t separator = name_and_comment.find(" | ");
    const std::optional<platform::Date> day = platform::Date::FromIso(date);
    if (!day || bar != "|" || separator == std::string::npos) {
      lines.Refuse("a currency, a date, a type, a name and a comment are expected");
      continue;
    }
    days.push_back({currency, *day, kind, name_and_comment.substr(0, separator),
                    name_and_comment.substr(separator + 3)});
  }
  return days;
}

}  // namespace ferrowind::testing
