#include "host/admin/given_text.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <istream>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::host {
namespace {

using platform::Failure;

constexpr const char* kStandardInput = "-";

[[noreturn]] void RefuseToRead(const std::string& name, int error) {
  throw Failure(platform::failure_number::kInvalidArgument,
                name + " cannot be read: " + std::strerror(error));
}

std::string ReadAll(std::istream& in, const std::string& name, std::size_t most) {
  std::string text;
  std::array<char, 4096> part{};
  errno = 0;
  while (in.read(part.data(), part.size()) || in.gcount() > 0) {
    text.append(part.data(), static_cast<std::size_t>(in.gcount()));
    if (text.size() > most) break;
  }
  // A folder can be opened, too.
  if (in.bad()) RefuseToRead(name, errno);
  return text;
}

}  // namespace

GivenText ReadGivenText(const std::string& file, std::istream& in, std::size_t most) {
  if (file == kStandardInput) {
    const std::string name = "Standard input";
    return {name, ReadAll(in, name, most)};
  }
  if (file.empty()) {
    throw Failure(platform::failure_number::kInvalidArgument, "The name of the file to read is empty");
  }
  errno = 0;
  std::ifstream opened(file, std::ios::binary);
  if (!opened) RefuseToRead(file, errno);
  return {file, ReadAll(opened, file, most)};
}

}  // namespace ferrowind::host
