#pragma once

#include <cstddef>
#include <iosfwd>
#include <limits>
#include <string>

namespace ferrowind::host {

/// The bytes that an operator gave in a file.
struct GivenText {
  /// What messages call it: the file, or "Standard input".
  std::string name;
  std::string text;
};

/// What the file holds, or `in` when `file` is "-". No more than one byte above `most` is read, by
/// which the caller knows that it is too long. What cannot be read is a `platform::Failure` that names the
/// file.
[[nodiscard]] GivenText ReadGivenText(const std::string& file, std::istream& in,
                                      std::size_t most = std::numeric_limits<std::size_t>::max());

}  // namespace ferrowind::host
