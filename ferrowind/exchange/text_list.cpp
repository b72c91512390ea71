#include "ferrowind/exchange/text_list.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "ferrowind/exchange/list_entry.h"
#include "ferrowind/exchange/list_faults.h"
#include "ferrowind/exchange/written_date.h"

namespace ferrowind::exchange {
namespace {

constexpr std::string_view kBlanks = " \t\r";

/// What stands between a date and a name.
std::string_view WithoutSeparator(std::string_view text) {
  const auto skip_blanks = [&] {
    text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
  };
  skip_blanks();
  constexpr std::array<std::string_view, 6> kSeparators = {",",           ";", ":", "-", "\xE2\x80\x93",
                                                           "\xE2\x80\x94"};
  for (const std::string_view separator : kSeparators) {
    if (!text.starts_with(separator)) continue;
    text.remove_prefix(separator.size());
    skip_blanks();
    break;
  }
  return text;
}

}  // namespace

DayList ReadTextList(std::string_view text) {
  DayList list;
  ListFaults faults;
  for (std::size_t line = 1; !text.empty(); ++line) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    std::string_view whole = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    whole.remove_prefix(std::min(whole.find_first_not_of(kBlanks), whole.size()));
    if (whole.empty() || whole.front() == '#') continue;
    const WrittenDate date = ReadDateAtFront(whole);
    if (!date.date) {
      faults.Add(line, date.why_not);
      continue;
    }
    const std::string_view written = whole.substr(0, whole.size() - date.rest.size());
    TakeEntry({line, written, WithoutSeparator(date.rest)}, list, faults);
  }
  faults.ThrowIfAny();
  return list;
}

std::string WriteTextList(const DayList& list) {
  std::string text;
  for (const ListedDay& day : list.days) {
    if (day.kind == ListedKind::kWorkingDay || day.kind == ListedKind::kHalfDay) continue;
    text += day.date.ToIso();
    if (!day.name.empty()) text += ' ' + day.name;
    text += '\n';
  }
  return text;
}

}  // namespace ferrowind::exchange
