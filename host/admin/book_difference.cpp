#include "host/admin/book_difference.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <map>
#include <optional>

#include "ferrowind/almanac/book_text.h"

#include "host/admin/terminal_text.h"

namespace ferrowind::host {
namespace {

using Lines = std::vector<std::string>;

/// Where both have the same line.
struct Match {
  std::size_t before;
  std::size_t after;
};

/// Matches the first of several equal lines with the first, and so on; ordered by the lines of `after`.
std::vector<Match> MatchesOf(const Lines& before, const Lines& after) {
  std::map<std::string, std::vector<std::size_t>> places;
  for (std::size_t i = before.size(); i > 0; --i) places[before[i - 1]].push_back(i - 1);
  std::vector<Match> matches;
  for (std::size_t i = 0; i < after.size(); ++i) {
    const auto known = places.find(after[i]);
    if (known == places.end() || known->second.empty()) continue;
    matches.push_back({known->second.back(), i});
    known->second.pop_back();
  }
  return matches;
}

/// The most of the matches that can stay, because they are in the same order in both.
std::vector<Match> LongestInOrder(const std::vector<Match>& matches) {
  // The matches with which the shortest, second shortest ... chain ends earliest, and what is before each.
  std::vector<std::size_t> ends;
  std::vector<std::optional<std::size_t>> previous(matches.size());
  for (std::size_t i = 0; i < matches.size(); ++i) {
    const auto longer =
        std::lower_bound(ends.begin(), ends.end(), matches[i].before,
                         [&](std::size_t end, std::size_t before) { return matches[end].before < before; });
    if (longer != ends.begin()) previous[i] = *(longer - 1);
    if (longer == ends.end()) {
      ends.push_back(i);
    } else {
      *longer = i;
    }
  }
  std::vector<Match> chain;
  std::optional<std::size_t> next = ends.empty() ? std::nullopt : std::optional(ends.back());
  for (; next; next = previous[*next]) chain.push_back(matches[*next]);
  std::reverse(chain.begin(), chain.end());
  return chain;
}

std::string Shown(char sign, const std::string& line) {
  return std::string(1, sign) + ' ' + ForTerminal(line, std::numeric_limits<std::size_t>::max()).text;
}

}  // namespace

std::vector<std::string> DifferenceOf(const almanac::RuleBook& before, const almanac::RuleBook& after) {
  const Lines old_lines = almanac::PlainLinesOf(before);
  const Lines new_lines = almanac::PlainLinesOf(after);
  std::vector<Match> kept = LongestInOrder(MatchesOf(old_lines, new_lines));
  kept.push_back({old_lines.size(), new_lines.size()});
  std::vector<std::string> difference;
  std::size_t old_line = 0;
  std::size_t new_line = 0;
  for (const Match& match : kept) {
    for (; old_line < match.before; ++old_line) difference.push_back(Shown('-', old_lines[old_line]));
    for (; new_line < match.after; ++new_line) difference.push_back(Shown('+', new_lines[new_line]));
    old_line = match.before + 1;
    new_line = match.after + 1;
  }
  return difference;
}

}  // namespace ferrowind::host
