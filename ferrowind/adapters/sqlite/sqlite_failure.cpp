#include "ferrowind/adapters/sqlite/sqlite_failure.h"

#include <filesystem>
#include <optional>
#include <system_error>

#include "ferrowind/adapters/sqlite/file_status.h"
#include "ferrowind/adapters/sqlite/files_beside.h"
#include "ferrowind/platform/values/file_path.h"

namespace ferrowind::sqlite {
namespace {

/// Beside the file that SQLite has opened, where `path` is a link to it.
std::optional<std::string> DangerBesideOpen(sqlite3* database) {
  const char* const name = database != nullptr ? sqlite3_db_filename(database, "main") : nullptr;
  return name != nullptr && *name != '\0' ? DangerBeside(name) : std::nullopt;
}

std::string WhyItCannotBeOpened(sqlite3* database, const std::string& path) {
  std::error_code error;
  const auto status = std::filesystem::status(platform::FilePath(path), error);
  switch (status.type()) {
    case std::filesystem::file_type::not_found:
      return "there is no such file";
    case std::filesystem::file_type::directory:
      return "it is a directory";
    case std::filesystem::file_type::none:
      return error.message();
    default:
      break;
  }
  if (const auto why = WhyNotReadable(path)) return why.message();
  if (const auto danger = DangerBesideOpen(database)) return *danger;
  return "the files that belong beside it cannot be opened or created";
}

std::string PlainWords(sqlite3* handle, int code, const std::string& path) {
  const std::string database = "The database " + path;
  // The file in memory that all programs share is a file on the disk all the same, and finds no room first.
  if (code == SQLITE_IOERR_SHMSIZE) code = SQLITE_FULL;
  switch (code & 0xFF) {
    case SQLITE_CANTOPEN:
      return database + " cannot be opened: " + WhyItCannotBeOpened(handle, path);
    case SQLITE_NOTADB:
      return "The file " + path + " is not a database";
    case SQLITE_CORRUPT:
      return database + " is damaged or cut short";
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return database + " is locked by another program";
    case SQLITE_READONLY:
      return database + " is read-only";
    case SQLITE_PERM:
    case SQLITE_AUTH:
      return database + " does not permit this";
    case SQLITE_FULL:
      return "The disk that holds the database " + path + " is full";
    case SQLITE_IOERR:
      return database + " cannot be read or written";
    case SQLITE_CONSTRAINT:
      return database + " refuses a wrong row";
    case SQLITE_TOOBIG:
      return "A value is too long for the database " + path;
    case SQLITE_INTERRUPT:
      return database + " did not finish: it took too long, or was told to stop";
    case SQLITE_NOMEM:
      return "There is not enough memory for the database " + path;
    default:
      return database + " reports an error";
  }
}

std::string WithCode(const std::string& words, int code, const char* text) {
  return words + " (SQLite " + std::to_string(code) + ": " + text + ")";
}

}  // namespace

platform::Failure FailureOf(sqlite3* database, const std::string& path) {
  if (database == nullptr) return FailureBy(SQLITE_NOMEM, path);
  const int code = sqlite3_extended_errcode(database);
  return {code, WithCode(PlainWords(database, code, path), code, sqlite3_errmsg(database))};
}

platform::Failure FailureBy(int code, const std::string& path) {
  return {code, WithCode(PlainWords(nullptr, code, path), code, sqlite3_errstr(code))};
}

}  // namespace ferrowind::sqlite
