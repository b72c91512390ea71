#include "host/admin/list_source.h"

#include <ostream>
#include <utility>

#include "ferrowind/adapters/icalendar/icalendar_list.h"
#include "ferrowind/exchange/list_faults.h"
#include "ferrowind/exchange/list_format.h"
#include "ferrowind/exchange/list_in_format.h"
#include "ferrowind/exchange/list_text.h"
#include "ferrowind/platform/values/failure.h"

#include "host/admin/given_text.h"
#include "host/admin/plan_arguments.h"
#include "host/admin/text_escapes.h"

namespace ferrowind::host {
std::optional<exchange::WantedYears> WantedYearsOf(const ListSource& source) {
  if (source.years.empty()) return std::nullopt;
  const YearRange years = ReadYears(source.years);
  return exchange::WantedYears{years.first, years.last};
}

GivenList ReadListFrom(const ListSource& source, const std::string& currency, std::istream& in) {
  const std::optional<exchange::WantedYears> wanted = WantedYearsOf(source);
  GivenText given = ReadGivenText(source.file, in, exchange::kLongestList);
  try {
    const std::string text = exchange::TextOfList(std::move(given.text));
    const auto named = exchange::FormatNamed(source.format);
    const exchange::ListFormat format = named ? *named : exchange::FormatOf(source.file, text);
    GivenList list{given.name,
                   exchange::SortByYear(exchange::ReadList(text, format, icalendar::ICalendar(), wanted),
                                        currency, wanted)};
    return list;
  } catch (const exchange::ListError& error) {
    throw platform::Failure(error.Number(), given.name + ": " + error.Description());
  }
}

void WriteListRemarks(const GivenList& list, std::ostream& out) {
  for (const std::string& remark : list.sorted.remarks) out << OneLine(list.name + ": " + remark) << ".\n";
}

}  // namespace ferrowind::host
