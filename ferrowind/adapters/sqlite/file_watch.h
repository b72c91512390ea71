#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>

#include "ferrowind/platform/database/change_watch.h"

namespace ferrowind::sqlite {

/// A watch of a database file: of what the file system tells of it and, when that has changed, of the newest
/// entry of its history.
///
/// It has no connection between two looks. An open one would keep the log of the file beside it, and a backup
/// that is put in the place of the file must never meet the log of another.
class FileWatch : public platform::ChangeWatch {
 public:
  explicit FileWatch(std::string path) : path_(std::move(path)) {}

  [[nodiscard]] bool Look() override;
  [[nodiscard]] std::chrono::milliseconds Pause() const override { return std::chrono::seconds(2); }

 private:
  /// What a change of a file changes.
  struct Trace {
    std::uint64_t device = 0;
    std::uint64_t number = 0;
    std::int64_t size = 0;
    /// Nanoseconds since 1970, as exact as the file system has it.
    std::int64_t written = 0;
    friend bool operator==(const Trace&, const Trace&) = default;
  };

  struct Traces {
    Trace file;
    /// Of the log beside it; nothing while there is none or an empty one.
    std::optional<Trace> log;
    friend bool operator==(const Traces&, const Traces&) = default;

    [[nodiscard]] bool IsSameFileAs(const Traces& other) const {
      return file.device == other.file.device && file.number == other.file.number;
    }
    /// Whether the next change would leave other traces: one that follows at once may have the same time.
    [[nodiscard]] bool AreOld() const;
  };

  struct Seen {
    Traces traces;
    bool were_old = false;
    std::int64_t newest_entry = 0;
  };

  [[nodiscard]] static std::optional<Trace> TraceOf(const std::string& path);
  /// Nothing when there is no file.
  [[nodiscard]] std::optional<Traces> TracesNow() const;
  [[nodiscard]] std::int64_t NewestEntry() const;

  std::string path_;
  /// By the last look that reached the database.
  std::optional<Seen> seen_;
};

}  // namespace ferrowind::sqlite
