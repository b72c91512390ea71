#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "ferrowind/adapters/sqlite/database_handle.h"
#include "ferrowind/platform/database/change_watch.h"

namespace ferrowind::sqlite {

/// A watch of a database file, by the number that SQLite changes for a connection whenever another one has
/// committed.
///
/// It keeps a connection of its own open, with no transaction on it: the number means something within one
/// connection only.
class FileWatch : public platform::ChangeWatch {
 public:
  explicit FileWatch(std::string path) : path_(std::move(path)) {}

  [[nodiscard]] bool Look() override;
  [[nodiscard]] std::chrono::milliseconds Pause() const override { return std::chrono::seconds(2); }

 private:
  /// A file, whatever it is called.
  struct FileIdentity {
    std::uint64_t device = 0;
    std::uint64_t number = 0;
    friend bool operator==(const FileIdentity&, const FileIdentity&) = default;
  };

  /// Nothing when there is no file at the path.
  [[nodiscard]] std::optional<FileIdentity> FileAtPath() const;
  [[nodiscard]] std::int64_t DataVersion() const;

  std::string path_;
  std::optional<FileIdentity> file_;
  std::optional<DatabaseHandle> database_;
  /// Nothing before the first look that reached the database.
  std::optional<std::int64_t> version_;
};

}  // namespace ferrowind::sqlite
