#include "host/admin/export_command.h"

#include <algorithm>
#include <cstddef>
#include <ostream>
#include <vector>

#include "ferrowind/adapters/icalendar/icalendar_list.h"
#include "ferrowind/exchange/list_file.h"
#include "ferrowind/exchange/list_format.h"
#include "ferrowind/exchange/list_in_format.h"
#include "ferrowind/planning/currency_list.h"
#include "ferrowind/planning/database_call.h"
#include "ferrowind/planning/listed_year.h"

#include "host/admin/database_content.h"
#include "host/admin/guarded_stream.h"
#include "host/admin/plan_arguments.h"
#include "host/admin/procedure_arguments.h"

namespace ferrowind::host {
namespace {

using exchange::ListFormat;
using planning::Currency;

std::vector<std::string> CodesIn(const std::string& text) {
  std::vector<std::string> codes;
  for (std::size_t begin = 0; begin <= text.size();) {
    const std::size_t end = std::min(text.find(',', begin), text.size());
    codes.push_back(text.substr(begin, end - begin));
    begin = end + 1;
  }
  return codes;
}

ListFormat FormatIn(const std::string& name) {
  const auto format = exchange::FormatNamed(name);
  if (!format) throw ArgumentError("\"" + name + "\" is no format, which is ics, csv, json or txt");
  return *format;
}

}  // namespace

ExitStatus ExportCommand::Run(const platform::EngineRegistry& engines, std::ostream& out) const {
  const YearRange wanted = ReadYears(years);
  const ListFormat form = FormatIn(format);
  const std::vector<std::string> codes = CodesIn(currencies);
  if (form == ListFormat::kText && codes.size() > 1) {
    throw ArgumentError("A list in the format txt is of one currency");
  }
  std::string text;
  RunWithCalendars(engines, url, [&] {
    const auto shared = planning::ShareConnections();
    const auto all = planning::CurrencyList::Load();
    std::vector<Currency> chosen;
    for (const std::string& code : codes) {
      const Currency& currency = all.Named(code);
      const bool is_known = std::any_of(chosen.begin(), chosen.end(),
                                        [&](const Currency& known) { return known.id == currency.id; });
      if (!is_known) chosen.push_back(currency);
    }
    // First, so that what changes meanwhile has a later one in the next list.
    const exchange::Revision revision = planning::RevisionFor(form);
    const exchange::DayList list = planning::ListCalendars(chosen, {wanted.first, wanted.last}, has_all);
    text = exchange::WriteList(list, form, icalendar::ICalendar(), revision);
  });
  if (file.empty() || file == "-") {
    ForPrograms(out) << text;
  } else {
    exchange::WriteListFile(file, text);
  }
  return ExitStatus::kDone;
}

}  // namespace ferrowind::host
