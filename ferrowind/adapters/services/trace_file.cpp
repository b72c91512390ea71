#include "ferrowind/adapters/services/trace_file.h"

#include <array>
#include <cstdio>
#include <exception>
#include <stdexcept>
#include <string_view>

#include "ferrowind/adapters/services/password_free.h"
#include "ferrowind/adapters/services/private_file.h"
#include "ferrowind/platform/database/history_moment.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind {
namespace {

std::unique_ptr<PrivateFile> OpenOrRefuse(const std::string& path) {
  try {
    return std::make_unique<PrivateFile>(path);
  } catch (const std::runtime_error& refusal) {
    throw platform::Failure(platform::failure_number::kInvalidArgument,
                            "Cannot write the trace file " + path + ": " + refusal.what());
  }
}

}  // namespace

TraceFile::TraceFile(const std::string& path) : file_(OpenOrRefuse(path)) {}

TraceFile::~TraceFile() = default;

void TraceFile::Write(const std::string& text) noexcept {
  try {
    // Better a line missing than the call that was traced.
    const std::string second =
        platform::MomentNow().substr(0, std::string_view("YYYY-MM-DDTHH:MM:SS").size());
    file_->Append(second + "Z " + OnOneLine(PasswordFree(text)) + '\n');
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
