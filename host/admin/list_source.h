#pragma once

#include <iosfwd>
#include <optional>
#include <string>

#include "ferrowind/exchange/year_list.h"

namespace ferrowind::host {

/// The list of days that an operator gave.
struct ListSource {
  /// The file; "-" for standard input.
  std::string file;
  /// As list_format.h names it; empty for the one that the list seems to have.
  std::string format = {};
  /// As `ReadYears` reads it; empty for the only year of the list.
  std::string years = {};
};

/// A list that was read.
struct GivenList {
  /// What messages call it.
  std::string name;
  exchange::SortedList sorted;
};

/// The years that are wanted; nothing when none is said. What cannot be read is an `ArgumentError`.
[[nodiscard]] std::optional<exchange::WantedYears> WantedYearsOf(const ListSource& source);

/// Reads the list, or `in`, and sorts what it says of the currency of that code. What cannot be read is a
/// `platform::Failure` that names the file, and the line where there is one.
[[nodiscard]] GivenList ReadListFrom(const ListSource& source, const std::string& currency, std::istream& in);

/// What is to be known beside the days, a line each.
void WriteListRemarks(const GivenList& list, std::ostream& out);

}  // namespace ferrowind::host
