#pragma once

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/loading/loaded_days.h"

#include "host/admin/date_question.h"

/// Questions about business days that come line by line, and answers as lines.
namespace ferrowind::host {

enum class AnswerFormat { kText, kJson };

/// The next line without its end; nothing behind the last one. Of a line that is too long for a question no
/// more is kept than what shows that.
[[nodiscard]] std::optional<std::string> NextDateLine(std::istream& in);

/// The answer to a question, as a JSON object on one line.
[[nodiscard]] std::string JsonLineOf(const std::vector<std::string>& words, const DateAnswer& answer,
                                     const DateAnswering& answering);

/// The answer to the question in `line`, without an end of line. What cannot be answered gets "error: " and
/// why, with JSON a member "error"; nothing is thrown for that.
[[nodiscard]] std::string AnswerDateLine(const std::string& line, const loading::LoadedDays& days,
                                         const DateAnswering& answering, AnswerFormat format);

}  // namespace ferrowind::host
