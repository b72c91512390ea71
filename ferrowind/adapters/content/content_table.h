#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace ferrowind::content {

/// A table whose rows are content of a calendar database, as opposed to what makes it one: a copy takes them
/// along. Table and columns have these names in every engine.
struct Table {
  std::string_view name;
  /// What its rows are, in the plural, for people.
  std::string_view rows;
  /// Those of the key first. Every column of a key is a whole number, so that each engine orders alike.
  std::vector<std::string_view> columns;
  std::size_t key_size;
};

/// All of them, each behind those that its rows refer to.
[[nodiscard]] const std::vector<Table>& Tables();

/// The one of `name`, which must be there.
[[nodiscard]] const Table& TableNamed(std::string_view name);

/// The columns, each as `written` writes it, with commas between.
[[nodiscard]] std::string ColumnList(const Table& table, std::string (*written)(std::string_view column));
[[nodiscard]] std::string ColumnList(const Table& table);

/// The list of the key's columns, which orders the rows.
[[nodiscard]] std::string KeyList(const Table& table);

}  // namespace ferrowind::content
