#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace ferrowind::sql_script {

/// One statement of a script, without the semicolon that ends it.
struct Statement {
  /// A part of the script: from the statement's first word to its last character that is not blank or
  /// comment.
  std::string_view text;
  /// The 1-based line of the script that `text` begins on.
  std::size_t line = 0;
};

/// The statements of `script` in their order. A semicolon ends a statement, except within quotes ('text',
/// "name", `name`, [name]) and comments (to the end of the line after --, or between the usual slash-star
/// marks); the last statement may do without. What holds nothing but blanks and comments is no statement. A
/// quote or comment that does not end, and the character NUL, are failures that name the line. The texts live
/// as long as the script.
[[nodiscard]] std::vector<Statement> SplitStatements(std::string_view script);

}  // namespace ferrowind::sql_script
