#include <cerrno>
#include <random>

#include <windows.h>
#include <fcntl.h>
#include <io.h>
#include <share.h>
#include <sys/stat.h>

#include "ferrowind/adapters/sqlite/new_file.h"
#include "ferrowind/adapters/windows/system_message.h"
#include "ferrowind/platform/values/file_path.h"

namespace ferrowind::sqlite {
namespace {

using platform::FilePath;

constexpr int kClosed = -1;

std::error_code LastOfTheLibrary() { return {errno, std::generic_category()}; }

std::string RandomName(const std::string& target) {
  constexpr std::string_view kLetters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
  std::random_device random;
  std::uniform_int_distribution<std::size_t> place(0, kLetters.size() - 1);
  std::string name = target + ".creating-";
  for (int count = 0; count < 6; ++count) name += kLetters[place(random)];
  return name;
}

/// The file's content is on the disk before its name is.
void Move(const std::string& path, const std::string& target, DWORD flags) {
  if (MoveFileExW(FilePath(path).c_str(), FilePath(target).c_str(), flags | MOVEFILE_WRITE_THROUGH) != 0)
    return;
  const DWORD error = GetLastError();
  if (error == ERROR_ALREADY_EXISTS || error == ERROR_FILE_EXISTS) throw InTheWay(target, kFileExists);
  throw platform::Failure(static_cast<std::int32_t>(error),
                          "The database " + target + " cannot be created: " + windows::SystemMessage(error));
}

}  // namespace

// Windows lets nobody else open a file that somebody keeps to themselves.
ReplacedFile::ReplacedFile(const std::string& path)
    : handle_(_wsopen(FilePath(path).c_str(), _O_RDWR | _O_BINARY | _O_NOINHERIT, _SH_DENYRW)) {
  if (handle_ == kClosed) {
    if (errno == EACCES && _waccess(FilePath(path).c_str(), 6) == 0) {
      throw InTheWay(path, "another program is creating it just now");
    }
    throw CannotCreate(path, LastOfTheLibrary());
  }
  if (_filelengthi64(handle_) == 0) return;
  _close(handle_);
  throw InTheWay(path, kFileExists);
}

ReplacedFile::~ReplacedFile() {
  if (handle_ != kClosed) _close(handle_);
}

NewFile::NewFile(const std::string& target) : target_(target) {
  int file = kClosed;
  do {
    path_ = RandomName(target);
    file = _wsopen(FilePath(path_).c_str(), _O_CREAT | _O_EXCL | _O_WRONLY | _O_BINARY | _O_NOINHERIT,
                   _SH_DENYNO, _S_IREAD | _S_IWRITE);
  } while (file == kClosed && errno == EEXIST);
  if (file == kClosed) throw CannotCreate(target_, LastOfTheLibrary());
  _close(file);
}

void NewFile::TakePlace() {
  Move(path_, target_, 0);
  is_in_place_ = true;
}

void NewFile::TakePlaceOf(ReplacedFile& replaced) {
  // Nothing takes the place of an open file. Another creation that opens it now keeps this one from it, and
  // one that comes later finds a file that is not empty.
  _close(replaced.handle_);
  replaced.handle_ = kClosed;
  Move(path_, target_, MOVEFILE_REPLACE_EXISTING);
  is_in_place_ = true;
}

}  // namespace ferrowind::sqlite
