#include "host/admin/copy_command.h"

#include <ostream>

#include <unistd.h>

#include "ferrowind/adapters/content/content_copy.h"

#include "host/admin/database_content.h"
#include "host/admin/interruption.h"
#include "host/admin/progress_line.h"

namespace ferrowind::host {
namespace {

std::string Summary(content::Source& source) {
  std::string summary;
  for (const content::Table& table : content::Tables()) {
    summary += "  " + std::string(table.rows) + ": " + std::to_string(source.CountRows(table)) + "\n";
  }
  return summary;
}

/// Copies, and tells what. No connection is left open when it fails.
std::string Copy(const platform::EngineRegistry& engines, const std::string& from, const std::string& to) {
  const auto source = OpenContent(engines, from, Interruption::WasAsked);
  const std::string summary = Summary(*source);
  ProgressLine line(STDERR_FILENO);
  const auto observe = [&](const content::CopyProgress& progress) {
    Interruption::ThrowIfAsked();
    const bool is_copying = progress.step == content::CopyProgress::Step::kCopying;
    line.Show((is_copying ? "Copying " : "Comparing ") + std::string(progress.rows), progress.done,
              progress.total);
  };
  FillDatabase(
      engines, to, [&](content::Target& target) { content::CopyContent(*source, target, observe); },
      Interruption::WasAsked);
  return summary;
}

}  // namespace

ExitStatus CopyCommand::Run(const platform::EngineRegistry& engines, std::ostream& out,
                            std::ostream& errors) const {
  std::string copied;
  RunInterruptibly([&] { copied = Copy(engines, from, to); }, errors);
  out << "The copy is complete and equal to the original:\n" << copied;
  return ExitStatus::kDone;
}

}  // namespace ferrowind::host
