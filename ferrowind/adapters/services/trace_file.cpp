#include "ferrowind/adapters/services/trace_file.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <exception>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "ferrowind/adapters/services/password_free.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind {
namespace {

std::string UtcNow() {
  const std::time_t now = std::time(nullptr);
  std::tm parts{};
  gmtime_r(&now, &parts);
  std::array<char, 32> text{};
  const std::size_t length = std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%SZ", &parts);
  return {text.data(), length};
}

platform::Failure CannotWrite(const std::string& path, const std::string& why) {
  return {platform::failure_number::kInvalidArgument, "Cannot write the trace file " + path + ": " + why};
}

/// Why the open file is not one that this user made for themselves; nothing when it is.
const char* Refusal(const struct stat& file) {
  if (!S_ISREG(file.st_mode)) return "it is no file";
  if (file.st_nlink != 1) return "it has another name as well";
  if (file.st_uid != geteuid()) return "it belongs to somebody else";
  return nullptr;
}

}  // namespace

TraceFile::TraceFile(const std::string& path)
    : file_(::open(path.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK,
                   S_IRUSR | S_IWUSR)) {
  if (file_ < 0) throw CannotWrite(path, errno == ELOOP ? "it is a link" : std::strerror(errno));
  struct stat status {};
  const char* refusal = ::fstat(file_, &status) == 0 ? Refusal(status) : std::strerror(errno);
  // An older one may be readable for others.
  if (refusal == nullptr && ::fchmod(file_, S_IRUSR | S_IWUSR) != 0) refusal = std::strerror(errno);
  if (refusal == nullptr) return;
  const auto failure = CannotWrite(path, refusal);
  ::close(file_);
  throw platform::Failure(failure);
}

TraceFile::~TraceFile() { ::close(file_); }

void TraceFile::Write(const std::string& text) noexcept {
  try {
    const std::string line = UtcNow() + ' ' + OnOneLine(PasswordFree(text)) + '\n';
    // Better a line missing than the call that was traced.
    const ssize_t ignored = ::write(file_, line.data(), line.size());
    static_cast<void>(ignored);
  } catch (const std::exception&) {
    // The same holds where there is no memory for the line.
  }
}

std::string OnOneLine(const std::string& text) {
  std::string line;
  for (const char character : text) {
    const auto byte = static_cast<unsigned char>(character);
    if (character == '\\') {
      line += "\\\\";
    } else if (character == '\n') {
      line += "\\n";
    } else if (character == '\r') {
      line += "\\r";
    } else if (byte < 0x20U || byte == 0x7FU) {
      std::array<char, 8> escape{};
      std::snprintf(escape.data(), escape.size(), "\\x%02X", static_cast<unsigned>(byte));
      line += escape.data();
    } else {
      line += character;
    }
  }
  return line;
}

}  // namespace ferrowind
