#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <system_error>

namespace ferrowind::sqlite {

/// What the system tells of something that has a path.
struct FileStatus {
  enum class Kind { kFile, kLink, kOther };
  Kind kind = Kind::kOther;
  /// Which file it is, whatever it is called.
  std::uint64_t device = 0;
  std::uint64_t number = 0;
  /// How many names it has.
  std::uint64_t names = 0;
  std::int64_t size = 0;
  /// Nanoseconds since 1970, as exact as the file system has it.
  std::int64_t written = 0;
  /// Whose it is. On Windows everything is of owner and group 0: who may write there is told by lists of
  /// rights, which nothing here reads.
  std::uint32_t owner = 0;
  std::uint32_t group = 0;
  bool group_may_write = false;
  bool others_may_write = false;
  /// Of a folder: what is made in it gets its group.
  bool gives_group = false;
};

/// Of a link, what it is itself. Nothing when there is nothing.
[[nodiscard]] std::optional<FileStatus> StatusOf(const std::string& path);

/// Of a link, what it leads to; `error` says why there is nothing.
[[nodiscard]] std::optional<FileStatus> StatusBehindLinks(const std::string& path, std::error_code& error);

/// Why this process cannot read the file; no error when it can.
[[nodiscard]] std::error_code WhyNotReadable(const std::string& path);

/// Whether it is this process' user's or the superuser's.
[[nodiscard]] bool IsOwnOrSuperusers(const FileStatus& file);

/// The name of the owner, or a number when there is none.
[[nodiscard]] std::string OwnerName(const FileStatus& file);

}  // namespace ferrowind::sqlite
