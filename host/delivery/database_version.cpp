#include "host/delivery/database_version.h"

#include <optional>

#include "ferrowind/adapters/sqlite/database_file.h"
#include "ferrowind/adapters/sqlite/engine.h"
#include "ferrowind/platform/database/connection_scheme.h"
#include "ferrowind/platform/values/failure.h"

#include "host/delivery/first_years.h"
#include "host/session/procedure_session.h"

namespace ferrowind::host {
namespace {

/// The path of the file with a calendar database in it that `url` names, or nothing.
std::optional<std::string> ReadableFile(const std::string& url) {
  if (!platform::BehindScheme(url, sqlite::Engine::kScheme)) return std::nullopt;
  const std::string path = sqlite::PathIn(url);
  try {
    (void)sqlite::ReadSchemaVersion(path);
  } catch (const platform::Failure&) {
    return std::nullopt;
  }
  return path;
}

}  // namespace

void UpgradeOwnDatabase(const platform::EngineRegistry& engines, const std::string& url) {
  const auto path = ReadableFile(url);
  if (!path) return;
  if (sqlite::UpgradeDatabase(*path).from >= kVersionOfFirstYears) return;
  RunWithDatabase(engines, url, [] { (void)GiveFirstYears(); });
}

void RequireThisVersion(const std::string& url) {
  if (const auto path = ReadableFile(url)) sqlite::RequireThisVersion(*path);
}

}  // namespace ferrowind::host
