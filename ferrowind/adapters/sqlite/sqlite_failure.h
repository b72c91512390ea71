#pragma once

#include <string>

#include <sqlite3.h>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::sqlite {

/// The failure for the error that `database` reported last, the one place where SQLite's errors become
/// failures. Its number is SQLite's extended result code; its description says what is wrong with the file
/// `path` in plain words and ends with SQLite's own code and text. `database` may be null when there was no
/// memory for it.
[[nodiscard]] platform::Failure FailureOf(sqlite3* database, const std::string& path);

/// The same for an error that SQLite did not report itself: its extended result code.
[[nodiscard]] platform::Failure FailureBy(int code, const std::string& path);

}  // namespace ferrowind::sqlite
