#pragma once

#include <string>
#include <system_error>

#include "ferrowind/platform/values/failure.h"

/// How a database comes to its place as a whole.
namespace ferrowind::sqlite {

inline constexpr const char* kFileExists = "there is a file already";

[[nodiscard]] platform::Failure CannotCreate(const std::string& path, const std::error_code& error);
[[nodiscard]] platform::Failure InTheWay(const std::string& path, const std::string& what);

/// An empty file that a new database takes the place of. Two creations must not both believe that they have
/// replaced it, so each holds a lock on it until it is done. What is in the way is a `platform::Failure`.
class ReplacedFile {
 public:
  explicit ReplacedFile(const std::string& path);
  ReplacedFile(const ReplacedFile&) = delete;
  ReplacedFile& operator=(const ReplacedFile&) = delete;
  ~ReplacedFile();

 private:
  friend class NewFile;
  /// The system's number of the open file.
  int handle_;
};

/// A new file in the folder of the database to be, which is removed unless it takes that database's place.
/// What goes wrong is a `platform::Failure`.
class NewFile {
 public:
  explicit NewFile(const std::string& target);
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;
  ~NewFile();

  [[nodiscard]] const std::string& Path() const { return path_; }

  /// Where nothing is.
  void TakePlace();
  /// Gives the lock up where the system demands that.
  void TakePlaceOf(ReplacedFile& replaced);

 private:
  std::string target_;
  std::string path_;
  bool is_in_place_ = false;
};

}  // namespace ferrowind::sqlite
