#include "ferrowind/planning/list_import.h"

#include <memory>
#include <optional>
#include <utility>

#include "ferrowind/exchange/list_file.h"
#include "ferrowind/exchange/list_format.h"
#include "ferrowind/exchange/list_in_format.h"
#include "ferrowind/exchange/list_text.h"
#include "ferrowind/planning/database_call.h"
#include "ferrowind/planning/in_words.h"
#include "ferrowind/planning/listed_year.h"
#include "ferrowind/planning/year_planner.h"
#include "ferrowind/platform/values/file_path.h"

namespace ferrowind::planning {
namespace {

std::string SentenceOf(const std::string& remark) { return remark + "."; }

}  // namespace

ListImport PrepareImport(const almanac::DateTables& tables, const ListFile& file,
                         const exchange::ICalendarFormat& icalendar) {
  const std::string text = exchange::TextOfList(exchange::ReadListFile(file.path));
  const exchange::WantedYears wanted{file.year, file.year};
  exchange::SortedList sorted =
      exchange::SortByYear(exchange::ReadList(text, exchange::FormatOf(file.path, text), icalendar, wanted),
                           file.currency.code, wanted);
  ListImport import{.calendar = {file.currency.id, file.year},
                    .source = platform::FileName(platform::FilePath(file.path).filename()),
                    .list = std::move(sorted.years.front()),
                    .takes_names = file.takes_names,
                    .remarks = {}};
  const auto shared = ShareConnections();
  const YearPlanner planner(tables);
  const ListedYear listed =
      PrepareListed(planner, file.currency, import.list, import.source, file.takes_names);
  for (const std::string& remark : sorted.remarks) import.remarks.push_back(SentenceOf(remark));
  for (const std::string& remark : listed.remarks) import.remarks.push_back(SentenceOf(remark));
  if (listed.other_names != 0) {
    import.remarks.push_back(InWords(listed.other_names,
                                     "%n closed day keeps its name, which the list calls otherwise.",
                                     "%n closed days keep their names, which the list calls otherwise."));
  }
  return import;
}

Preparer ByList(ListImport import) {
  return [import = std::move(import)](const YearPlanner& planner, const Currency& currency, int) {
    return PrepareListed(planner, currency, import.list, import.source, import.takes_names).preparation;
  };
}

}  // namespace ferrowind::planning
