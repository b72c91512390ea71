#include "host/admin/init_command.h"

#include "host/delivery/first_database.h"

namespace ferrowind::host {

ExitStatus InitCommand::Run(const platform::EngineRegistry& engines) const {
  CreateFirstDatabase(engines, url, is_empty ? DatabaseContent::kEmpty : DatabaseContent::kDelivered);
  return ExitStatus::kDone;
}

}  // namespace ferrowind::host
