#include "ferrowind/exchange/list_format.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "ferrowind/platform/values/case_fold.h"

namespace ferrowind::exchange {
namespace {

constexpr std::array<std::pair<ListFormat, std::string_view>, 4> kNames = {{
    {ListFormat::kICalendar, "ics"},
    {ListFormat::kCsv, "csv"},
    {ListFormat::kJson, "json"},
    {ListFormat::kText, "txt"},
}};

}  // namespace

std::string_view NameOf(ListFormat format) {
  return std::find_if(kNames.begin(), kNames.end(), [&](const auto& known) { return known.first == format; })
      ->second;
}

std::optional<ListFormat> FormatNamed(std::string_view name) {
  const auto* const found = std::find_if(kNames.begin(), kNames.end(), [&](const auto& known) {
    return platform::CompareIgnoringCase(known.second, name) == 0;
  });
  if (found == kNames.end()) return std::nullopt;
  return found->first;
}

ListFormat FormatOf(std::string_view file_name, std::string_view text) {
  constexpr std::size_t kEnoughToKnow = 200;
  text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n"), text.size()));
  const std::string begin = platform::FoldCase(text.substr(0, kEnoughToKnow));
  if (begin.starts_with("begin:vcalendar")) return ListFormat::kICalendar;
  if (begin.starts_with('[') || begin.starts_with('{')) return ListFormat::kJson;
  const std::string name = platform::FoldCase(file_name);
  if (name.ends_with(".csv") || name.ends_with(".tsv")) return ListFormat::kCsv;
  for (const std::string_view head : {"date,", "date;", "date\t", "\"date\""}) {
    if (begin.starts_with(head)) return ListFormat::kCsv;
  }
  return ListFormat::kText;
}

}  // namespace ferrowind::exchange
