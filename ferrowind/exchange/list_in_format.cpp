#include "ferrowind/exchange/list_in_format.h"

#include "ferrowind/exchange/csv_list.h"
#include "ferrowind/exchange/json_list.h"
#include "ferrowind/exchange/text_list.h"

namespace ferrowind::exchange {

std::string WriteList(const DayList& list, ListFormat format, const ICalendarFormat& icalendar,
                      const Revision& revision) {
  switch (format) {
    case ListFormat::kICalendar:
      return icalendar.Write(list, revision);
    case ListFormat::kCsv:
      return WriteCsvList(list);
    case ListFormat::kJson:
      return WriteJsonList(list);
    case ListFormat::kText:
      return WriteTextList(list);
  }
  return {};
}

DayList ReadList(const std::string& text, ListFormat format, const ICalendarFormat& icalendar,
                 const std::optional<WantedYears>& wanted) {
  switch (format) {
    case ListFormat::kICalendar:
      return icalendar.Read(text, wanted);
    case ListFormat::kCsv:
      return ReadCsvList(text);
    case ListFormat::kJson:
      return ReadJsonList(text);
    case ListFormat::kText:
      return ReadTextList(text);
  }
  return {};
}

}  // namespace ferrowind::exchange
