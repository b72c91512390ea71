#include "host/admin/book_source.h"

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <fstream>
#include <istream>

#include "ferrowind/almanac/book_text.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::host {
namespace {

using platform::Failure;

constexpr const char* kStandardInput = "-";

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

almanac::RuleBook ReadText(const std::string& text, const std::string& name) {
  try {
    return almanac::ReadBook(text);
  } catch (const Failure& failure) {
    throw Failure(failure.Number(), name + ": " + failure.Description());
  }
}

}  // namespace

almanac::RuleBook ReadBookFrom(const std::string& file, std::istream& in) {
  if (file.empty() || file == kStandardInput) {
    const std::string name = "Standard input";
    return ReadText(ReadAll(in, name), name);
  }
  errno = 0;
  std::ifstream opened(file, std::ios::binary);
  if (!opened) RefuseToRead(file, errno);
  return ReadText(ReadAll(opened, file), file);
}

}  // namespace ferrowind::host
