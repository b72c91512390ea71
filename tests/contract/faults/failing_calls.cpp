#include "tests/contract/faults/failing_calls.h"

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <string_view>

#include <dlfcn.h>
#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <stdio.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace ferrowind::contract::failing_calls {
namespace {

Record* record = nullptr;
int chosen_call = 0;
Way chosen_way = Way::kError;
bool is_disk_full = false;
bool is_network_drive = false;

bool IsOneOf(std::string_view name, std::initializer_list<std::string_view> names) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

bool Moves(std::string_view name) {
  return IsOneOf(name, {"read", "write", "pread", "pwrite", "recv", "send"});
}
bool TakesRoom(std::string_view name) {
  return IsOneOf(name, {"write", "pwrite", "fsync", "fdatasync", "ftruncate", "create", "rename", "link"});
}
bool IsOfASocket(std::string_view name) { return IsOneOf(name, {"recv", "send", "connect"}); }

/// The number of the error that this call ends with; 0 when it is made, and negative when in part.
int Next(const char* name) {
  if (record == nullptr) return 0;
  if (record->count < Record::kMostCalls) record->names[record->count] = name;
  ++record->count;
  // Where what a call brings depends on the time, the chosen one may be another call than it was when they
  // were counted.
  const bool is_it =
      chosen_call != 0 && !record->has_fired && record->count >= chosen_call && CanGoWrong(name, chosen_way);
  if (!is_it) {
    return is_disk_full && TakesRoom(name) ? ENOSPC : 0;
  }
  record->has_fired = true;
  switch (chosen_way) {
    case Way::kError:
      return IsOfASocket(name) ? ECONNRESET : EIO;
    case Way::kFullDisk:
      is_disk_full = true;
      return ENOSPC;
    case Way::kInterrupted:
      return EINTR;
    case Way::kPart:
      return -1;
    case Way::kKilled:
      syscall(SYS_kill, getpid(), SIGKILL);
  }
  return 0;
}

template <typename Function>
Function* Real(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

/// `make(count)` makes the call with that many bytes.
template <typename Make>
ssize_t Transfer(const char* name, size_t count, const Make& make) {
  const int error = Next(name);
  if (error == 0) return make(count);
  if (error < 0) return make(count > 1 ? count / 2 : count);
  errno = error;
  return -1;
}

/// A connection that was reset stays so: who could not send gets no answer, and the other side is told.
template <typename Make>
ssize_t TransferOverSocket(const char* name, int socket, size_t count, const Make& make) {
  const ssize_t moved = Transfer(name, count, make);
  if (moved >= 0 || record == nullptr || !record->has_fired || errno != ECONNRESET) return moved;
  shutdown(socket, SHUT_RDWR);
  errno = ECONNRESET;
  return moved;
}

template <typename Make>
int Do(const char* name, const Make& make) {
  const int error = Next(name);
  if (error <= 0) return make();
  errno = error;
  return -1;
}

const char* NameOfOpening(int flags) { return (flags & O_CREAT) != 0 ? "create" : "open"; }

bool TakesMode(int flags) { return (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE; }

}  // namespace

void Arm(Record& shared, int chosen, Way way) {
  record = &shared;
  shared.count = 0;
  shared.has_fired = false;
  chosen_call = chosen;
  chosen_way = way;
  is_disk_full = false;
}

void Disarm() { record = nullptr; }

bool CanGoWrong(const char* name, Way way) {
  switch (way) {
    case Way::kError:
      return std::string_view(name) != "poll";
    case Way::kFullDisk:
      return TakesRoom(name);
    case Way::kInterrupted:
      // Files of a disk are written, made durable and renamed without a look at signals.
      return IsOneOf(name, {"read", "write", "recv", "send", "poll", "open", "create"});
    case Way::kPart:
      return Moves(name);
    case Way::kKilled:
      return true;
  }
  return false;
}

void BehaveAsNetworkDrive(bool is_on) { is_network_drive = is_on; }

}  // namespace ferrowind::contract::failing_calls

namespace {

using ferrowind::contract::failing_calls::Do;
using ferrowind::contract::failing_calls::is_network_drive;
using ferrowind::contract::failing_calls::NameOfOpening;
using ferrowind::contract::failing_calls::Real;
using ferrowind::contract::failing_calls::TakesMode;
using ferrowind::contract::failing_calls::Transfer;
using ferrowind::contract::failing_calls::TransferOverSocket;

}  // namespace

extern "C" {

ssize_t read(int file, void* bytes, size_t count) {
  static auto* const real = Real<ssize_t(int, void*, size_t)>("read");
  return Transfer("read", count, [&](size_t some) { return real(file, bytes, some); });
}

ssize_t write(int file, const void* bytes, size_t count) {
  static auto* const real = Real<ssize_t(int, const void*, size_t)>("write");
  return Transfer("write", count, [&](size_t some) { return real(file, bytes, some); });
}

ssize_t pread64(int file, void* bytes, size_t count, off64_t offset) {
  static auto* const real = Real<ssize_t(int, void*, size_t, off64_t)>("pread64");
  return Transfer("pread", count, [&](size_t some) { return real(file, bytes, some, offset); });
}

ssize_t pread(int file, void* bytes, size_t count, off_t offset) {
  return pread64(file, bytes, count, offset);
}

ssize_t pwrite64(int file, const void* bytes, size_t count, off64_t offset) {
  static auto* const real = Real<ssize_t(int, const void*, size_t, off64_t)>("pwrite64");
  return Transfer("pwrite", count, [&](size_t some) { return real(file, bytes, some, offset); });
}

ssize_t pwrite(int file, const void* bytes, size_t count, off_t offset) {
  return pwrite64(file, bytes, count, offset);
}

ssize_t recv(int socket, void* bytes, size_t count, int flags) {
  static auto* const real = Real<ssize_t(int, void*, size_t, int)>("recv");
  return TransferOverSocket("recv", socket, count,
                            [&](size_t some) { return real(socket, bytes, some, flags); });
}

ssize_t send(int socket, const void* bytes, size_t count, int flags) {
  static auto* const real = Real<ssize_t(int, const void*, size_t, int)>("send");
  return TransferOverSocket("send", socket, count,
                            [&](size_t some) { return real(socket, bytes, some, flags); });
}

int connect(int socket, const struct sockaddr* address, socklen_t length) {
  static auto* const real = Real<int(int, const struct sockaddr*, socklen_t)>("connect");
  return Do("connect", [&] { return real(socket, address, length); });
}

int poll(struct pollfd* files, nfds_t count, int timeout) {
  static auto* const real = Real<int(struct pollfd*, nfds_t, int)>("poll");
  return Do("poll", [&] { return real(files, count, timeout); });
}

// What is written must outlive the process here, not the machine: nothing waits for the disk.
int fsync(int /*file*/) {
  return Do("fsync", [] { return 0; });
}

int fdatasync(int /*file*/) {
  return Do("fdatasync", [] { return 0; });
}

int ftruncate64(int file, off64_t size) noexcept {
  static auto* const real = Real<int(int, off64_t)>("ftruncate64");
  return Do("ftruncate", [&] { return real(file, size); });
}

int ftruncate(int file, off_t size) noexcept { return ftruncate64(file, size); }

int openat64(int folder, const char* path, int flags, ...) {
  static auto* const real = Real<int(int, const char*, int, ...)>("openat64");
  mode_t mode = 0;
  if (TakesMode(flags)) {
    va_list arguments;
    va_start(arguments, flags);
    mode = va_arg(arguments, mode_t);
    va_end(arguments);
  }
  return Do(NameOfOpening(flags), [&] { return real(folder, path, flags, mode); });
}

int open64(const char* path, int flags, ...) {
  mode_t mode = 0;
  if (TakesMode(flags)) {
    va_list arguments;
    va_start(arguments, flags);
    mode = va_arg(arguments, mode_t);
    va_end(arguments);
  }
  return openat64(AT_FDCWD, path, flags, mode);
}

int open(const char* path, int flags, ...) {
  mode_t mode = 0;
  if (TakesMode(flags)) {
    va_list arguments;
    va_start(arguments, flags);
    mode = va_arg(arguments, mode_t);
    va_end(arguments);
  }
  return openat64(AT_FDCWD, path, flags, mode);
}

int rename(const char* from, const char* to) noexcept {
  static auto* const real = Real<int(const char*, const char*)>("rename");
  return Do("rename", [&] { return real(from, to); });
}

int renameat2(int from_folder, const char* from, int to_folder, const char* to, unsigned flags) noexcept {
  static auto* const real = Real<int(int, const char*, int, const char*, unsigned)>("renameat2");
  if (is_network_drive && flags != 0) {
    errno = EINVAL;
    return -1;
  }
  return Do("rename", [&] { return real(from_folder, from, to_folder, to, flags); });
}

int link(const char* from, const char* to) noexcept {
  static auto* const real = Real<int(const char*, const char*)>("link");
  return Do("link", [&] { return real(from, to); });
}

int unlink(const char* path) noexcept {
  static auto* const real = Real<int(const char*)>("unlink");
  return Do("unlink", [&] { return real(path); });
}

int flock(int file, int operation) noexcept {
  static auto* const real = Real<int(int, int)>("flock");
  if (is_network_drive && (fcntl(file, F_GETFL) & O_ACCMODE) == O_RDONLY) {
    errno = EBADF;
    return -1;
  }
  return Do("flock", [&] { return real(file, operation); });
}

}  // extern "C"
