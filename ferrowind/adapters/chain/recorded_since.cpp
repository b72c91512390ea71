#include "ferrowind/adapters/chain/recorded_since.h"

#include <cstddef>
#include <string_view>

#include "ferrowind/adapters/chain/chain_start.h"
#include "ferrowind/adapters/content/content_table.h"
#include "ferrowind/platform/values/conversion.h"

namespace ferrowind::chain {
namespace {

/// Clocks of machines differ by less.
std::string DateIn(std::string_view moment) { return std::string(moment.substr(0, 10)); }

/// Whether the call made a calendar, which leaves a row in any case: no other that keeps to one calendar
/// changes as many rows.
bool MadeCalendar(const content::Row& entry) {
  constexpr std::int64_t kShortestYear = 365;
  return platform::ToTextOrEmpty(entry[entry_column::kProcedureName]) == "CldIUMain" &&
         NumberIn(entry[entry_column::kRowsChanged]) > kShortestYear;
}

}  // namespace

RecordedSince::RecordedSince(content::Source& source, const std::vector<content::Row>& starts,
                             ProblemList& problems)
    : problems_(problems) {
  {
    const auto reader = source.Rows(content::TableNamed("CldHistoryStart"), content::RowOrder::kByKey);
    content::Row row;
    if (reader->Next(row)) said_ = Beginning{NumberIn(row[0]), platform::ToTextOrEmpty(row[1])};
  }
  if (said_) CompareWithChains(starts);
}

void RecordedSince::CompareWithChains(const std::vector<content::Row>& starts) {
  const std::int64_t last_before = starts.empty() ? 0 : NumberIn(starts.front()[start_column::kEntryID]);
  const std::string chained =
      starts.empty() ? "" : platform::ToTextOrEmpty(starts.front()[start_column::kMoment]);
  const std::string claim =
      "CldHistoryStart says that the history tells what calls replaced only since " + said_->moment;
  if (chained.empty()) {
    problems_.Add(claim + ", but it did so when the database was created");
  } else if (said_->entry > last_before || DateIn(said_->moment) > DateIn(chained)) {
    problems_.Add(claim + " and the entry " + std::to_string(said_->entry) +
                  ", but it did so at the upgrade of " + chained);
  } else {
    return;
  }
  is_contradicted_ = true;
}

void RecordedSince::LookAt(const HistoryEntry& entry) {
  if (is_contradicted_) return;
  const std::int64_t number = NumberIn(entry.entry[entry_column::kEntryID]);
  const bool is_before = said_ && number <= said_->entry;
  if (is_before && !entry.rows.empty()) {
    problems_.Add("CldHistoryStart says that the entries up to number " + std::to_string(said_->entry) +
                  " do not tell what they replaced, but the " + NameOf(entry.entry) + " does");
    is_contradicted_ = true;
  } else if (!is_before && entry.rows.empty() && MadeCalendar(entry.entry)) {
    problems_.Add("The " + NameOf(entry.entry) +
                  " does not tell what it replaced, and CldHistoryStart does " +
                  (said_ ? "not say so" : "not say since when entries do"));
    is_contradicted_ = true;
  } else if (said_ && !is_before &&
             DateIn(platform::ToTextOrEmpty(entry.entry[entry_column::kMoment])) < DateIn(said_->moment)) {
    problems_.Add("CldHistoryStart says that entries tell what they replaced since " + said_->moment +
                  ", but the " + NameOf(entry.entry) + " does so and is older");
    is_contradicted_ = true;
  }
}

}  // namespace ferrowind::chain
