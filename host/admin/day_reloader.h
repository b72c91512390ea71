#pragma once

#include <condition_variable>
#include <iosfwd>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

#include "ferrowind/loading/day_loader.h"
#include "ferrowind/platform/database/change_watch.h"
#include "ferrowind/platform/database/engine_registry.h"

namespace ferrowind::host {

/// While it lives, a thread of its own watches a database and reloads its business days when it has changed.
class DayReloader {
 public:
  /// `loader` loads the database that `url` names. What cannot be watched or reloaded is told to `errors`
  /// once, and tried again. All of them must outlive this object, and nobody else writes to `errors`
  /// meanwhile.
  DayReloader(const platform::EngineRegistry& engines, const std::string& url, loading::DayLoader& loader,
              std::ostream& errors);
  DayReloader(const DayReloader&) = delete;
  DayReloader& operator=(const DayReloader&) = delete;
  ~DayReloader();

 private:
  void Run();
  void LookOnce();
  /// False when the thread is to end.
  [[nodiscard]] bool Wait();

  loading::DayLoader& loader_;
  std::ostream& errors_;
  std::unique_ptr<platform::ChangeWatch> watch_;
  /// The watch has told of a change that is not loaded yet.
  bool is_due_ = false;
  /// The last failure, until the days were reloaded.
  std::string told_;
  std::mutex mutex_;
  std::condition_variable ending_;
  bool is_ending_ = false;
  /// Last, because it uses all of the above.
  std::thread thread_;
};

}  // namespace ferrowind::host
