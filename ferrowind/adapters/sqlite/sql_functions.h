#pragma once

#include <sqlite3.h>

namespace ferrowind::sqlite {

/// Gives `database` the functions that the views and the procedures use beside SQLite's own:
///  - FERROWIND_FINGERPRINT(a, b, ...): the digits of the `platform::Fingerprint` of the values of all rows,
///  an aggregate; rows come from a subquery that orders them;
///  - FERROWIND_DAYS(Day1, TID1, ID2, Comment): the days of all rows as one text, an aggregate: for each
///  "Day1,TID1,ID2,length:Comment", where the length counts the bytes of the comment;
///  - FERROWIND_IS_TEXT(text): whether the text is well-formed UTF-8 without the character NUL, which a text
///  made from the escapes of JSON need not be; 1 of NULL;
///  - FERROWIND_USER(): the user whom the history names for the calls of this program.
/// Returns SQLite's result code.
[[nodiscard]] int AddSqlFunctions(sqlite3* database) noexcept;

}  // namespace ferrowind::sqlite
