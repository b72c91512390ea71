#include "host/admin/calendar_warnings.h"

#include <algorithm>
#include <map>
#include <utility>

#include "ferrowind/data/module_state.h"
#include "ferrowind/planning/database_review.h"

#include "host/delivery/delivered_tables.h"
#include "host/delivery/first_years.h"
#include "host/session/procedure_session.h"

namespace ferrowind::host {
namespace {

using almanac::Finding;
using almanac::FindingSubject;
using platform::Value;

bool IsOfWholeCalendar(const Finding& finding) {
  return finding.year &&
         (finding.subject == FindingSubject::kMissingYear || finding.subject == FindingSubject::kNoWeekends);
}

std::string WithCommas(const std::vector<std::string>& codes) {
  std::string list;
  for (const std::string& code : codes) list += (list.empty() ? "" : ", ") + code;
  return list;
}

}  // namespace

CalendarWarnings::CalendarWarnings(const platform::EngineRegistry& engines, const std::string& url) {
  RunWithDatabase(engines, url, [&] {
    findings_ =
        planning::ReviewDatabase(DeliveredDateTables(), AttachedPlatform().clock.Today(), {}).findings;
    books_left_by_upgrade_ = BooksWithoutFirstYear();
  });
  findings_.erase(std::remove_if(findings_.begin(), findings_.end(),
                                 [](const Finding& finding) { return !IsOfWholeCalendar(finding); }),
                  findings_.end());
}

std::vector<std::string> CalendarWarnings::Sentences() const {
  if (!why_not_.empty()) return {"The calendars cannot be looked into: " + why_not_};
  std::map<std::pair<int, FindingSubject>, std::string> currencies;
  for (const Finding& finding : findings_) {
    std::string& codes = currencies[{*finding.year, finding.subject}];
    codes += (codes.empty() ? "" : ", ") + finding.currency;
  }
  std::vector<std::string> sentences;
  if (!books_left_by_upgrade_.empty()) {
    sentences.push_back(
        "An upgrade was cut off at its end: the tables are of this version, but the rule books of " +
        WithCommas(books_left_by_upgrade_) +
        " do not say since when they hold; \"ferrowindctl upgrade\" lets them say it");
  }
  for (const auto& [what, codes] : currencies) {
    const auto& [year, subject] = what;
    sentences.push_back((subject == FindingSubject::kMissingYear
                             ? "There is no calendar of "
                             : "No weekend is closed in the calendar of ") +
                        std::to_string(year) + " for " + codes);
  }
  return sentences;
}

std::shared_ptr<platform::RecordSet> CalendarWarnings::Rows() const {
  std::vector<std::vector<Value>> rows;
  if (!why_not_.empty()) rows.push_back({Value(), Value(), why_not_});
  for (const std::string& code : books_left_by_upgrade_) {
    rows.push_back({Value(), code, std::string("upgrade cut off")});
  }
  for (const Finding& finding : findings_) {
    rows.push_back(
        {static_cast<std::int32_t>(*finding.year), finding.currency,
         std::string(finding.subject == FindingSubject::kMissingYear ? "no calendar" : "no weekends")});
  }
  return std::make_shared<platform::RecordSet>(std::vector<std::string>{"Year", "Ccy", "Warning"},
                                               std::move(rows));
}

}  // namespace ferrowind::host
