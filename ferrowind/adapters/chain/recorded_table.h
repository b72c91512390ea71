#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "ferrowind/platform/values/value.h"

namespace ferrowind::chain {

/// The columns of CldHistoryRow that hold keys, by their places among them.
enum KeyColumn : std::size_t { kID1, kYear1, kDay1, kID2, kPosition, kKeyColumns };

/// A table of whose rows the history keeps what calls replace and leave.
struct RecordedTable {
  struct Column {
    /// In the table.
    int place = 0;
    const char* name = nullptr;
  };

  std::string_view name;
  /// By which rows and the digests of databases know it, for ever; tables ascend by it.
  std::int64_t number = 0;
  /// Of the key, which is in front: the column of CldHistoryRow that each goes into.
  std::vector<KeyColumn> key;
  /// Those that make up the text of a row.
  std::vector<Column> columns;
};

[[nodiscard]] const std::vector<RecordedTable>& RecordedTables();

/// The numbers of two that have a part of their own, which are their places, too.
inline constexpr std::size_t kCalendarTable = 0;
inline constexpr std::size_t kDayTable = 1;

/// The text of a day without rule and comment.
inline constexpr std::string_view kOrdinaryDay = R"({"TID1" : 1, "ID2" : null, "Comment" : null})";

/// What a row of `table` holds beside its key, a JSON object as the columns OldRow and NewRow of
/// CldHistoryRow have it, the same text in every engine. `cell` gives the value of the column at a place.
[[nodiscard]] std::string RowText(const RecordedTable& table,
                                  const std::function<platform::Value(int place)>& cell);

/// What a call left of a calendar that it made: a JSON object of the days that have a rule or a comment, by
/// number.
class NewCalendarText {
 public:
  /// Days ascend.
  void Add(std::int64_t day, std::string_view row_text);
  [[nodiscard]] std::string Text() const { return days_.empty() ? "{}" : days_ + "}"; }

 private:
  std::string days_;
};

}  // namespace ferrowind::chain
