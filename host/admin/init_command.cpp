#include "host/admin/init_command.h"

#include <ostream>
#include <string>

#include <unistd.h>

#include "ferrowind/adapters/services/system_clock.h"
#include "ferrowind/almanac/review.h"

#include "host/admin/interruption.h"
#include "host/admin/progress_line.h"

namespace ferrowind::host {
namespace {

std::optional<Delivery> Create(const platform::EngineRegistry& engines, const InitCommand& command) {
  ProgressLine line(STDERR_FILENO);
  const auto observe = [&](std::size_t done, std::size_t total) {
    Interruption::ThrowIfAsked();
    line.Show("Creating calendars", static_cast<std::int64_t>(done), static_cast<std::int64_t>(total));
  };
  return CreateFirstDatabase(engines, command.url, SystemClock(), command.content, observe,
                             Interruption::WasAsked);
}

void Tell(const Delivery& delivery, std::ostream& out) {
  out << "The database is created, with the rule books of " << delivery.currencies.size()
      << " currencies and their calendars of " << delivery.first_year << " and " << delivery.last_year
      << ":\n ";
  for (const std::string& currency : delivery.currencies) out << ' ' << currency;
  out << '\n';
  if (!delivery.unknown.empty()) {
    out << "What is not announced yet is not in them:\n";
    for (const std::string& sentence : delivery.unknown) out << "  " << sentence << ".\n";
  }
}

/// The years that "review" will miss.
void TellYearsThatAreDue(const Delivery& delivery, const almanac::ReviewHorizon& horizon, std::ostream& out) {
  if (horizon.last_year <= delivery.last_year) return;
  const int first = delivery.last_year + 1;
  const std::string years =
      std::to_string(first) + (first < horizon.last_year ? ".." + std::to_string(horizon.last_year) : "");
  out << "Calendars must be there up to " << horizon.last_year << " by now: \"ferrowindctl apply URL ALL "
      << years << "\" makes the rest.\n";
}

}  // namespace

ExitStatus InitCommand::Run(const platform::EngineRegistry& engines, std::ostream& out,
                            std::ostream& errors) const {
  std::optional<Delivery> delivery;
  RunInterruptibly([&] { delivery = Create(engines, *this); }, errors);
  if (delivery) {
    Tell(*delivery, out);
    TellYearsThatAreDue(*delivery, almanac::ReviewHorizon::Of(SystemClock().Today(), {}), out);
  } else {
    out << "The database is created, without rule books, rules and calendars.\n";
  }
  return ExitStatus::kDone;
}

}  // namespace ferrowind::host
