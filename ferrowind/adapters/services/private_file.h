#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace ferrowind {

/// A file that this user alone can read, open for appending.
class PrivateFile {
 public:
  /// Creates the file where there is none, and takes the rights of others from one that is there.
  /// @param path in UTF-8
  /// @throws std::runtime_error that says why it was not opened: the system's reason, or that it is a link,
  /// no file, a file of another user or one with several names
  explicit PrivateFile(const std::string& path);
  PrivateFile(const PrivateFile&) = delete;
  PrivateFile& operator=(const PrivateFile&) = delete;
  ~PrivateFile();

  /// Writes at the file's end, where others may write at the same time. Says nothing of what goes wrong.
  void Append(std::string_view bytes) noexcept;

 private:
  /// The platform's own.
  class Handle;
  std::unique_ptr<Handle> handle_;
};

}  // namespace ferrowind
