#include "host/admin/init_command.h"

#include <ostream>

#include <unistd.h>

#include "ferrowind/adapters/services/system_clock.h"

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
  if (delivery.unknown.empty()) return;
  out << "What is not announced yet is not in them:\n";
  for (const std::string& sentence : delivery.unknown) out << "  " << sentence << ".\n";
}

}  // namespace

ExitStatus InitCommand::Run(const platform::EngineRegistry& engines, std::ostream& out,
                            std::ostream& errors) const {
  std::optional<Delivery> delivery;
  RunInterruptibly([&] { delivery = Create(engines, *this); }, errors);
  if (delivery) {
    Tell(*delivery, out);
  } else {
    out << "The database is created, without rule books, rules and calendars.\n";
  }
  return ExitStatus::kDone;
}

}  // namespace ferrowind::host
