#pragma once

#include <iosfwd>
#include <optional>
#include <string>

#include "ferrowind/platform/database/engine_registry.h"

#include "host/admin/exit_status.h"

/// `ferrowindctl book`: the rule books of a database, which say what the years of its currencies should be.
/// What cannot be done is a `platform::Failure` that says why. Codes may be written in any letter case.
namespace ferrowind::host {

struct BookShowCommand {
  std::string url;
  std::string currency;

  /// Prints the book to `out`, as `BookSetCommand` reads it.
  [[nodiscard]] ExitStatus Run(const platform::EngineRegistry& engines, std::ostream& out) const;
};

/// Replaces a book as a whole.
struct BookSetCommand {
  std::string url;
  /// "ALL" with `is_delivered` means every currency that a book is delivered for.
  std::string currency;
  /// The file with the text of the book; standard input without one, or when it is "-".
  std::optional<std::string> file;
  /// The book that comes with the program, instead of a text.
  bool is_delivered = false;

  /// The text is checked wholly before anything is stored: on its own, and beside the books of the other
  /// currencies. Faults are printed to `errors`, each on a line, and the status is then `kNotDone`. Of
  /// several books none is stored when one has a fault; each is then stored by a call of its own.
  [[nodiscard]] ExitStatus Run(const platform::EngineRegistry& engines, std::istream& in, std::ostream& out,
                               std::ostream& errors) const;
};

struct BookCheckCommand {
  std::string url;
  /// "ALL" means every currency that has a book.
  std::string currency;
  /// The file with the text of a book that is looked at as if it was the currency's; "-" is standard input.
  /// Without it, what is stored.
  std::optional<std::string> file;

  /// Prints a line for each fault to `out`, or that there is none; the status is `kNotDone` when there is
  /// one. Changes nothing.
  [[nodiscard]] ExitStatus Run(const platform::EngineRegistry& engines, std::istream& in,
                               std::ostream& out) const;
};

}  // namespace ferrowind::host
