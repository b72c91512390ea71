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

/// A stream alone would create the file for everyone to read.
void CreateForOwner(const std::string& path) {
  const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, S_IRUSR | S_IWUSR);
  if (file < 0) {
    throw platform::Failure(platform::failure_number::kInvalidArgument,
                            "Cannot write the trace file " + path + ": " + std::strerror(errno));
  }
  ::close(file);
}

}  // namespace

TraceFile::TraceFile(const std::string& path) {
  CreateForOwner(path);
  file_.open(path, std::ios::app | std::ios::binary);
  if (!file_) {
    throw platform::Failure(platform::failure_number::kInvalidArgument,
                            "Cannot write the trace file " + path);
  }
}

void TraceFile::Write(const std::string& text) noexcept {
  try {
    file_ << UtcNow() << ' ' << OnOneLine(PasswordFree(text)) << '\n' << std::flush;
  } catch (const std::exception&) {
    // Better a line missing than the call that was traced.
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
