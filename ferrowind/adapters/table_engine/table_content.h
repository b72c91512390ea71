#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "ferrowind/platform/toolkit/table.h"

namespace ferrowind::table_engine {

/// By which column the rows are sorted, and which way.
struct Sorting {
  std::size_t column = 0;
  bool is_descending = false;
  friend bool operator==(const Sorting&, const Sorting&) = default;
};

/// What a table shows, whatever draws it: columns, rows in the order on show, and their checks.
///
/// Rows and columns have places, counted from 0; those of rows are places among the rows on show. Failures
/// are those of `platform::Table`.
class TableContent {
 public:
  /// Says a mark in the operator's language.
  using Wording = std::function<std::string(platform::CellMark mark)>;

  /// `table_name` is for the texts of failures.
  explicit TableContent(std::string table_name, Wording word_of = platform::WordOf)
      : table_name_(std::move(table_name)), word_of_(std::move(word_of)) {}

  void SetColumns(const std::vector<platform::TableColumn>& columns);
  /// Rows that keep their keys keep their checks; the sorting stays.
  void SetRows(const std::vector<platform::TableRow>& rows);

  [[nodiscard]] const std::vector<platform::TableColumn>& Columns() const { return columns_; }
  [[nodiscard]] std::size_t RowCount() const { return rows_.size(); }
  [[nodiscard]] const platform::TableRow& RowAt(std::size_t place) const { return rows_[order_[place]]; }
  /// An empty cell where the row has fewer.
  [[nodiscard]] const platform::TableCell& CellAt(std::size_t place, std::size_t column) const;
  [[nodiscard]] std::vector<std::string> Keys() const;

  [[nodiscard]] std::optional<std::size_t> FindRow(const std::string& key) const;
  [[nodiscard]] std::size_t RowOf(const std::string& key) const;
  [[nodiscard]] std::size_t ColumnOf(const std::string& key) const;
  /// The place of the row that takes over from one of that key and place after the rows were replaced;
  /// nothing without rows. Without a key it is the first.
  [[nodiscard]] std::optional<std::size_t> Successor(const std::optional<std::string>& key,
                                                     std::size_t place) const;

  /// The rows of those keys in the order given, below the captions, with a tab between cells and a line feed
  /// behind each line. A cell without a text is told by the word for its mark.
  [[nodiscard]] std::string TextOf(const std::vector<std::string>& rows) const;

  /// Does nothing for a row without a box; true when it changed.
  bool SetChecked(std::size_t place, bool checked);

  [[nodiscard]] const std::optional<Sorting>& Sorted() const { return sorting_; }
  /// Rows that are equal stay in the program's order; without a sorting all are in that.
  void Sort(std::optional<Sorting> sorting);
  /// The sorting that a click on that column's header leads to.
  [[nodiscard]] std::optional<Sorting> SortingAfterClick(std::size_t column) const;

 private:
  void Arrange();

  std::string table_name_;
  Wording word_of_;
  std::vector<platform::TableColumn> columns_;
  std::vector<platform::TableRow> rows_;
  /// The rows on show as indices of `rows_`, and the way back.
  std::vector<std::size_t> order_;
  std::vector<std::size_t> places_;
  /// The keys are those that the rows hold.
  std::unordered_map<std::string_view, std::size_t> rows_by_key_;
  std::optional<Sorting> sorting_;
};

}  // namespace ferrowind::table_engine
