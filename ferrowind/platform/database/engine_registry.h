#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "ferrowind/export.h"
#include "ferrowind/platform/database/engine.h"

namespace ferrowind::platform {

/// The engines that a host has, each under what its connection strings begin with: the scheme of a URI
/// ("sqlite:"), or the keyword of a list of settings ("DSN=...;...").
class FERROWIND_EXPORT EngineRegistry {
 public:
  /// `scheme` without its colon, found without regard to case. A scheme registered before is taken over by
  /// the newer engine. No engine is the failure Invalid argument, and the registry stays as it was.
  void Register(std::string scheme, std::shared_ptr<Engine> engine);

  /// `keyword` without its equals sign, found without regard to case. One that was registered before is taken
  /// over by the newer engine. No engine is a failure as with `Register`.
  void RegisterKeyword(const std::string& keyword, std::shared_ptr<Engine> engine);

  /// The engine for `connection_string`, never null; it lives at least as long as the registry. A connection
  /// string of no known engine is a failure that names its scheme, if it has one, and nothing of the rest,
  /// which may hold a password.
  [[nodiscard]] Engine& EngineFor(const std::string& connection_string) const;

 private:
  /// By scheme in small letters, or by keyword in small letters with its equals sign.
  std::vector<std::pair<std::string, std::shared_ptr<Engine>>> engines_;
};

}  // namespace ferrowind::platform
