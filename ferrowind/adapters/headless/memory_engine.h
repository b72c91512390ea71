#pragma once

#include <map>
#include <memory>
#include <string>

#include "ferrowind/adapters/headless/memory_database.h"
#include "ferrowind/platform/database/engine.h"

namespace ferrowind::headless {

/// Databases in memory, reached by connection strings "memory:NAME".
class MemoryEngine : public platform::Engine {
 public:
  /// Makes a new database of that name, in place of one that had it. It lives as long as a connection or the
  /// engine.
  MemoryDatabase& CreateDatabase(const std::string& name);

  [[nodiscard]] std::unique_ptr<platform::Connection> Connect(const std::string& connection_string) override;
  [[nodiscard]] std::shared_ptr<platform::RecordSet> ReadDictionary(const std::string& connection_string,
                                                                    const std::string& name) override;
  [[nodiscard]] std::unique_ptr<platform::ChangeWatch> Watch(const std::string& connection_string) override;
  [[nodiscard]] std::unique_ptr<platform::SilenceWatch> WatchSilence(
      const std::string& connection_string) override;

 private:
  [[nodiscard]] std::shared_ptr<MemoryDatabase> DatabaseOf(const std::string& connection_string) const;

  std::map<std::string, std::shared_ptr<MemoryDatabase>> databases_;
};

}  // namespace ferrowind::headless
