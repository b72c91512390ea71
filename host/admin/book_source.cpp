#include "host/admin/book_source.h"

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <fstream>
#include <istream>
#include <sstream>
#include <string_view>

#include "ferrowind/almanac/text_lines.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::host {
namespace {

using platform::Failure;

constexpr const char* kStandardInput = "-";
constexpr std::string_view kState = "# state ";

[[noreturn]] void RefuseToRead(const std::string& name, int error) {
  throw Failure(platform::failure_number::kInvalidArgument,
                name + " cannot be read: " + std::strerror(error));
}

std::string ReadAll(std::istream& in, const std::string& name) {
  std::string text;
  std::array<char, 4096> part{};
  errno = 0;
  while (in.read(part.data(), part.size()) || in.gcount() > 0) {
    text.append(part.data(), static_cast<std::size_t>(in.gcount()));
  }
  // A folder can be opened, too.
  if (in.bad()) RefuseToRead(name, errno);
  return text;
}

/// What the first line that begins as a `StateLine` does says.
std::optional<std::string> StateIn(const std::string& text) {
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    const std::string_view whole = almanac::WithoutOuterBlanks(line);
    if (whole.starts_with(kState)) {
      return std::string(almanac::WithoutOuterBlanks(whole.substr(kState.size())));
    }
  }
  return std::nullopt;
}

}  // namespace

BookSource ReadBookFrom(const std::string& file, std::istream& in) {
  const auto read = [](std::istream& from, const std::string& name) {
    const std::string text = ReadAll(from, name);
    return BookSource{name, almanac::ReadWholeBook(text), StateIn(text)};
  };
  if (file.empty() || file == kStandardInput) return read(in, "Standard input");
  errno = 0;
  std::ifstream opened(file, std::ios::binary);
  if (!opened) RefuseToRead(file, errno);
  return read(opened, file);
}

std::string StateLine(const std::string& fingerprint) { return std::string(kState) + fingerprint + '\n'; }

}  // namespace ferrowind::host
