#pragma once

#include <QAbstractTableModel>

#include "ferrowind/adapters/table_engine/table_content.h"

namespace ferrowind::qt {

/// What a table's view, type-ahead and assistive tools ask about its content.
class TableModel final : public QAbstractTableModel {
  Q_OBJECT

 public:
  /// The content must outlive the model.
  explicit TableModel(const table_engine::TableContent& content) : content_(content) {}

  [[nodiscard]] const table_engine::TableContent& Content() const { return content_; }
  /// Whether a row is read as a whole: then each of its cells tells of the others in its description.
  void SetReadsRows(bool reads) { reads_rows_ = reads; }
  /// Tells the views that all of the content may be another one.
  void ContentReplaced();
  /// Tells the views that the boxes of rows have changed.
  void ChecksChanged();

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
  [[nodiscard]] QString DescriptionOf(std::size_t place, std::size_t column) const;

  const table_engine::TableContent& content_;
  bool reads_rows_ = true;
};

}  // namespace ferrowind::qt
