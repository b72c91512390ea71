#pragma once

#include <iosfwd>
#include <string>

#include "ferrowind/almanac/rule_book.h"

namespace ferrowind::host {

/// The book whose text the file holds, or `in` when `file` is empty or "-". What cannot be read, and a text
/// that is no book, are a `platform::Failure` that names the file, and of a text the line and the place in
/// it.
[[nodiscard]] almanac::RuleBook ReadBookFrom(const std::string& file, std::istream& in);

}  // namespace ferrowind::host
