#pragma once

#include <string>

/// Lists as files. Names of files are UTF-8; what cannot be done is a `platform::Failure` that names the file
/// and tells why.
namespace ferrowind::exchange {

/// The bytes of a list, and of one that is longer than a list may be (`kLongestList`) only so many that this
/// is seen. Only files are read: a pipe could keep its reader waiting.
[[nodiscard]] std::string ReadListFile(const std::string& file);

/// Makes `text` the content of the file, as a whole or not at all, so that nobody reads half a list. What is
/// no file but can be written, such as a pipe, is written to.
void WriteListFile(const std::string& file, const std::string& text);

}  // namespace ferrowind::exchange
