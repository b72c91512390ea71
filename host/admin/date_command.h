#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "ferrowind/platform/database/engine_registry.h"

#include "host/admin/date_line.h"
#include "host/admin/date_question.h"
#include "host/admin/exit_status.h"

/// `ferrowindctl date`: what the calendars of a database say of business days and value dates.
namespace ferrowind::host {

/// One question. The answer stands alone on the last line; why on lines before it.
struct DateCommand {
  std::string url;
  std::vector<std::string> words;
  DateAnswering answering;
  AnswerFormat format = AnswerFormat::kText;

  /// Nothing is thrown: what cannot be answered is said on `errors`, and is the status `kNotPrepared` or
  /// `kNotAnswered`.
  [[nodiscard]] ExitStatus Run(const platform::EngineRegistry& engines, std::ostream& out,
                               std::ostream& errors) const;
};

/// A question a line, until there are no more, and an answer a line, which is written at once. A line that
/// cannot be answered gets "error: " and why, with JSON a member "error". Changes of the database are seen
/// within seconds; while it is out of reach the answers are as before, and `errors` says so.
struct DateServeCommand {
  std::string url;
  DateAnswering answering;
  AnswerFormat format = AnswerFormat::kText;

  /// A failure when the database cannot be read at the beginning.
  [[nodiscard]] ExitStatus Run(const platform::EngineRegistry& engines, std::istream& in, std::ostream& out,
                               std::ostream& errors) const;
};

}  // namespace ferrowind::host
