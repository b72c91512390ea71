#include "ferrowind/adapters/icalendar/event_lines.h"

#include <algorithm>
#include <string>
#include <utility>

#include "ferrowind/platform/values/case_fold.h"

namespace ferrowind::icalendar {

EventLines EventLinesOf(std::string_view text) {
  constexpr std::string_view kBegin = "begin:";
  constexpr std::string_view kEnd = "end:";
  EventLines lines;
  std::vector<std::pair<std::string, std::size_t>> open;
  for (std::size_t number = 1; !text.empty(); ++number) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    while (!line.empty() && (line.back() == '\r' || line.back() == ' ')) line.remove_suffix(1);
    constexpr std::size_t kLongest = 40;
    if (line.size() > kLongest) continue;
    const std::string folded = platform::FoldCase(line);
    if (folded.starts_with(kBegin)) {
      const std::string name = folded.substr(kBegin.size());
      if (name == "vevent") {
        lines.events.push_back(number);
      } else if (open.size() == 1) {
        ++lines.others;
      }
      open.emplace_back(name, number);
    } else if (folded.starts_with(kEnd)) {
      if (open.empty() || open.back().first != folded.substr(kEnd.size())) {
        if (lines.broken == 0) lines.broken = number;
        continue;
      }
      open.pop_back();
    }
  }
  if (lines.broken == 0 && !open.empty()) lines.broken = open.front().second;
  return lines;
}

}  // namespace ferrowind::icalendar
