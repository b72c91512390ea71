#pragma once

#include <cstddef>
#include <string>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::almanac {

/// The failure of a text of lines (a book, a table): `Line 7, at 35: a name is expected`.
class TextError : public platform::Failure {
 public:
  TextError(std::size_t line, std::size_t place, const std::string& reason);

  /// From 1 on.
  [[nodiscard]] std::size_t Line() const noexcept { return line_; }
  /// The byte of the line, from 1 on.
  [[nodiscard]] std::size_t Place() const noexcept { return place_; }

 private:
  std::size_t line_;
  std::size_t place_;
};

}  // namespace ferrowind::almanac
