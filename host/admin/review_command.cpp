#include "host/admin/review_command.h"

#include <algorithm>
#include <array>
#include <memory>
#include <ostream>
#include <utility>
#include <vector>

#include "ferrowind/data/module_state.h"
#include "ferrowind/planning/counted.h"
#include "ferrowind/planning/database_review.h"

#include "host/admin/database_content.h"
#include "host/delivery/delivered_tables.h"

namespace ferrowind::host {
namespace {

using almanac::Finding;
using almanac::FindingLevel;
using platform::RecordSet;
using platform::Value;

/// For programs.
std::shared_ptr<RecordSet> InFields(const std::vector<Finding>& findings) {
  std::vector<std::vector<Value>> rows;
  for (const Finding& finding : findings) {
    rows.push_back({std::string(almanac::TextOf(finding.level)),
                    finding.currency.empty() ? Value() : Value(finding.currency),
                    finding.year ? Value(static_cast<std::int32_t>(*finding.year)) : Value(),
                    finding.day ? Value(*finding.day) : Value(), finding.sentence.InEnglish()});
  }
  return std::make_shared<RecordSet>(std::vector<std::string>{"level", "currency", "year", "date", "finding"},
                                     std::move(rows));
}

/// For people, to whom the sentences say the rest.
std::shared_ptr<RecordSet> InSentences(const std::vector<Finding>& findings) {
  std::vector<std::vector<Value>> rows;
  for (const Finding& finding : findings) {
    rows.push_back({std::string(almanac::TextOf(finding.level)), finding.sentence.InEnglish()});
  }
  return std::make_shared<RecordSet>(std::vector<std::string>{"level", "finding"}, std::move(rows));
}

std::string Summary(const planning::DatabaseReview& review) {
  const std::string calendars = planning::Counted(review.calendars, "calendar", "calendars") + " of " +
                                planning::Counted(review.currencies, "currency", "currencies");
  if (review.findings.empty()) return "All is right: " + calendars + ".";
  std::array<std::size_t, 3> counts{};
  for (const Finding& finding : review.findings) ++counts[static_cast<std::size_t>(finding.level)];
  const auto of = [&](FindingLevel level, std::string_view one, std::string_view many) {
    return planning::Counted(counts[static_cast<std::size_t>(level)], one, many);
  };
  const std::string notes = of(FindingLevel::kNote, "note", "notes");
  if (review.Worst() == FindingLevel::kNote) {
    // What nobody has published yet may still close days, so that nobody can call these calendars right.
    const bool lacks_dates = std::ranges::any_of(review.findings, [](const Finding& finding) {
      return finding.subject == almanac::FindingSubject::kIncompletePlan;
    });
    return std::string(lacks_dates ? "All is right as far as it is published: " : "All is right: ") +
           calendars + ", with " + notes + ".";
  }
  return calendars + ": " + of(FindingLevel::kError, "error", "errors") + ", " +
         of(FindingLevel::kWarning, "warning", "warnings") + ", " + notes + ".";
}

void Write(const planning::DatabaseReview& review, OutputFormat format, std::ostream& out) {
  if (format != OutputFormat::kTable) return WriteList(*InFields(review.findings), format, out);
  if (!review.findings.empty()) {
    WriteList(*InSentences(review.findings), format, out);
    out << '\n';
  }
  out << Summary(review) << '\n';
}

}  // namespace

ExitStatus ReviewCommand::Run(const platform::EngineRegistry& engines, std::ostream& out) const {
  planning::DatabaseReview review;
  RunWithCalendars(engines, url, [&] {
    review = planning::ReviewDatabase(DeliveredDateTables(), AttachedPlatform().clock.Today(), horizon);
  });
  Write(review, format, out);
  const auto worst = review.Worst();
  return worst && *worst >= FindingLevel::kWarning ? ExitStatus::kNotDone : ExitStatus::kDone;
}

}  // namespace ferrowind::host
