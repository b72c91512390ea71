#pragma once

#include <memory>

#include "ferrowind/platform/database/engine.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::host {

/// Is told how each use of a database ended, by the thread that used it.
class DatabaseObserver {
 public:
  virtual ~DatabaseObserver() = default;

  /// A call came back, whatever it returned, or a dictionary was read.
  virtual void DatabaseAnswered() = 0;
  /// What `failure` says kept the database from doing what was asked.
  virtual void DatabaseFailed(const platform::Failure& failure) = 0;
};

/// An engine that does what another one does, watched. The component keeps the failure of a call to itself
/// until the next error report, which for many calls never comes; its host can tell the operator at once.
class WatchedEngine : public platform::Engine {
 public:
  /// `observer` must outlive the engine and its connections, and must not throw.
  WatchedEngine(std::shared_ptr<platform::Engine> engine, DatabaseObserver& observer);

  [[nodiscard]] std::unique_ptr<platform::Connection> Connect(const std::string& connection_string) override;
  [[nodiscard]] std::shared_ptr<platform::RecordSet> ReadDictionary(const std::string& connection_string,
                                                                    const std::string& name) override;

 private:
  std::shared_ptr<platform::Engine> engine_;
  DatabaseObserver& observer_;
};

}  // namespace ferrowind::host
