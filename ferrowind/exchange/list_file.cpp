#include "ferrowind/exchange/list_file.h"

#include <cerrno>
#include <cstddef>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <ios>
#include <system_error>

#include "ferrowind/exchange/list_text.h"
#include "ferrowind/platform/values/failure.h"
#include "ferrowind/platform/values/file_path.h"

namespace ferrowind::exchange {
namespace {

using platform::FilePath;

[[noreturn]] void Refuse(const std::string& file, const char* what, const std::string& why) {
  throw platform::Failure(platform::failure_number::kInvalidArgument, file + what + why);
}

[[noreturn]] void RefuseToRead(const std::string& file, const std::string& why) {
  Refuse(file, " cannot be read: ", why);
}

[[noreturn]] void RefuseToWrite(const std::string& file, const std::string& why) {
  Refuse(file, " cannot be written: ", why);
}

void WriteInto(const std::string& file, const std::filesystem::path& name, const std::string& text) {
  errno = 0;
  std::ofstream out(name, std::ios::binary);
  out << text;
  out.close();
  if (!out) RefuseToWrite(file, std::strerror(errno));
}

}  // namespace

std::string ReadListFile(const std::string& file) {
  std::error_code error;
  const auto there = std::filesystem::status(FilePath(file), error);
  if (std::filesystem::exists(there) && !std::filesystem::is_regular_file(there))
    RefuseToRead(file, "it is no file");
  errno = 0;
  std::ifstream in(FilePath(file), std::ios::binary);
  if (!in) RefuseToRead(file, std::strerror(errno));
  std::string bytes(kLongestList + 1, '\0');
  in.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  if (in.bad()) RefuseToRead(file, std::strerror(errno));
  bytes.resize(static_cast<std::size_t>(in.gcount()));
  return bytes;
}

void WriteListFile(const std::string& file, const std::string& text) {
  std::error_code error;
  const auto there = std::filesystem::status(FilePath(file), error);
  if (std::filesystem::exists(there) && !std::filesystem::is_regular_file(there))
    return WriteInto(file, FilePath(file), text);
  const std::filesystem::path part = FilePath(file + ".part");
  try {
    WriteInto(file, part, text);
    std::filesystem::rename(part, FilePath(file), error);
    if (error) RefuseToWrite(file, error.message());
  } catch (const platform::Failure&) {
    std::error_code ignored;
    std::filesystem::remove(part, ignored);
    throw;
  }
}

}  // namespace ferrowind::exchange
