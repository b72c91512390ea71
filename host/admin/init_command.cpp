#include "host/admin/init_command.h"

#include <unistd.h>

#include "host/admin/interruption.h"
#include "host/admin/progress_line.h"
#include "host/delivery/first_database.h"

namespace ferrowind::host {
namespace {

void Create(const platform::EngineRegistry& engines, const std::string& url, DatabaseContent content) {
  ProgressLine line(STDERR_FILENO);
  CreateFirstDatabase(engines, url, content, [&](std::size_t done, std::size_t total) {
    Interruption::ThrowIfAsked();
    line.Show("Creating calendars", static_cast<std::int64_t>(done), static_cast<std::int64_t>(total));
  });
}

}  // namespace

ExitStatus InitCommand::Run(const platform::EngineRegistry& engines, std::ostream& errors) const {
  const auto content = is_empty ? DatabaseContent::kEmpty : DatabaseContent::kDelivered;
  RunInterruptibly([&] { Create(engines, url, content); }, errors);
  return ExitStatus::kDone;
}

}  // namespace ferrowind::host
