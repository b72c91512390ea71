#include "host/admin/upgrade_command.h"

#include <cstdint>
#include <ostream>
#include <string>

#include "ferrowind/adapters/postgres/database_objects.h"
#include "ferrowind/adapters/postgres/engine.h"
#include "ferrowind/adapters/sqlite/database_file.h"
#include "ferrowind/adapters/sqlite/engine.h"
#include "ferrowind/planning/counted.h"

#include "host/admin/interruption.h"
#include "host/admin/long_texts.h"
#include "host/admin/text_escapes.h"
#include "host/delivery/first_years.h"
#include "host/session/procedure_session.h"

namespace ferrowind::host {
namespace {

/// The schema version whose procedures take no text of any length.
constexpr std::int64_t kVersionOfTextLimits = 5;

content::UpgradeOutcome Upgrade(const std::string& url) {
  return postgres::IsConnectionString(url)
             ? postgres::UpgradeDatabase(url, Interruption::WasAsked)
             : sqlite::UpgradeDatabase(sqlite::PathIn(url), Interruption::WasAsked);
}

void TellGivenYears(const FirstYears& years, std::ostream& out) {
  out << planning::Counted(years.given, "rule book says", "rule books say") << " since when "
      << (years.given == 1 ? "it holds" : "they hold") << " now, as delivered.\n";
}

void TellOtherBooks(const FirstYears& years, std::ostream& out) {
  if (years.others.empty()) return;
  out << "Rule books that are not as delivered tell of all years as before:";
  for (const std::string& code : years.others) out << ' ' << OneLine(code);
  out << ". A line \"since YEAR\" in them says otherwise.\n";
}

/// What the upgrade keeps although nobody could store it any more.
void TellLongTexts(const std::string& url, std::ostream& out) {
  const auto texts = LongTextsIn(url);
  if (texts.empty()) return;
  out << "These texts are longer than what can be stored now. They stay as they are:\n";
  for (const std::string& text : texts) out << "  " << OneLine(text) << ".\n";
}

}  // namespace

ExitStatus UpgradeCommand::Run(const platform::EngineRegistry& engines, std::ostream& out,
                               std::ostream& errors) const {
  // Says that there is no such engine, where an adapter can only say that it is not its own.
  (void)engines.EngineFor(url);
  content::UpgradeOutcome outcome;
  RunInterruptibly([&] { outcome = Upgrade(url); }, errors);
  const bool was_upgraded = outcome.from != outcome.to;
  if (was_upgraded) {
    out << "The database was upgraded from the schema version " << outcome.from << " to " << outcome.to
        << ".\n";
  }
  // A signal from now on ends the program, and what is done has been told. The next upgrade does the rest.
  out.flush();
  if (outcome.from < kVersionOfTextLimits) TellLongTexts(url, out);
  FirstYears years;
  RunWithDatabase(engines, url, [&] { years = GiveFirstYears(); });
  if (!was_upgraded) {
    out << (years.given == 0 ? "There is nothing to do: the" : "An upgrade was cut off at its end. The")
        << " database has the schema version " << outcome.to << ".\n";
  }
  if (years.given != 0) TellGivenYears(years, out);
  if (outcome.from < kVersionOfFirstYears) TellOtherBooks(years, out);
  return ExitStatus::kDone;
}

}  // namespace ferrowind::host
