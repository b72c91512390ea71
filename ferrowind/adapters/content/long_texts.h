#pragma once

#include <string>
#include <vector>

namespace ferrowind::content {

/// Questions to the tables of a calendar database for texts that are longer than procedures take
/// (text_limits.h), which it holds from before there were limits. Each row of an answer is one sentence
/// without a full stop. `schema` stands in front of the tables' names ("ferrowind." or nothing), `length` is
/// the engine's function that counts characters.
[[nodiscard]] std::vector<std::string> LongTextQuestions(const std::string& schema,
                                                         const std::string& length);

}  // namespace ferrowind::content
