#include "host/admin/why_command.h"

#include <ostream>
#include <string_view>

#include "ferrowind/almanac/date_words.h"
#include "ferrowind/planning/year_planner.h"

#include "host/admin/database_content.h"
#include "host/admin/plan_arguments.h"
#include "host/admin/plan_remarks.h"
#include "host/admin/text_escapes.h"
#include "host/delivery/delivered_tables.h"

namespace ferrowind::host {
namespace {

constexpr const char* kOrdinary = "ordinary working day";

void WriteLine(std::string_view what, const std::string& text, std::ostream& out) {
  constexpr std::size_t kWidth = 8;
  out << what << std::string(kWidth - what.size(), ' ') << OneLine(text) << '\n';
}

std::string NowOf(const planning::YearPreparation& preparation, const almanac::ComparisonLine& line,
                  const std::string& comment) {
  if (!preparation.CalendarExists()) return "not prepared: there is no calendar " + preparation.Name();
  return line.now.value_or(kOrdinary) + (comment.empty() ? "" : " (" + comment + ")");
}

std::string ShouldOf(const almanac::YearPlan& plan, const almanac::ComparisonLine& line) {
  if (line.should) return *line.should;
  return std::string(kOrdinary) + (plan.Unknown().empty() ? "" : ", as far as the plan knows");
}

}  // namespace

ExitStatus WhyCommand::Run(const platform::EngineRegistry& engines, std::ostream& out,
                           std::ostream& errors) const {
  const platform::Date day = ReadDay(date);
  RunWithCalendars(engines, url, [&] {
    const planning::YearPlanner planner(DeliveredDateTables());
    const auto preparation = planner.Prepare(planner.Currencies().Named(currency), day.Year());
    const almanac::Comparison& comparison = preparation->Compared();
    const almanac::ComparedDay compared = comparison.DayAt(day.DayOfYear());
    const almanac::ComparisonLine line = comparison.LineOf(compared);
    const almanac::RuleBook& book = comparison.Plan().Book();
    out << OneLine(preparation->Owner().code) << ", " << almanac::LongDay(day.Serial()).InEnglish() << '\n';
    WriteLine("now", NowOf(*preparation, line, compared.now != nullptr ? compared.now->comment : ""), out);
    WriteLine("should", ShouldOf(comparison.Plan(), line), out);
    WriteLine("why", line.why.InEnglish(), out);
    WriteLine("book", book.publisher + ": " + book.document, out);
    WriteIncomplete(*preparation, errors);
  });
  return ExitStatus::kDone;
}

}  // namespace ferrowind::host
