#pragma once

#include <QElapsedTimer>
#include <QString>
#include <optional>
#include <string>

#include "ferrowind/adapters/qt/grid/grid_content.h"

namespace ferrowind::qt {

/// Finds the row whose cell begins with what the operator types.
class TypeAhead {
 public:
  /// Takes the keys just typed. `column` is the column searched, `current_row` the 0-based current row or -1.
  /// The row found, or nothing when no cell begins so. Keys typed in one go are one text, which the current
  /// row may match too; the same single key again and again goes from match to match.
  [[nodiscard]] std::optional<int> Search(const QString& keys, const GridContent& content,
                                          std::int16_t column, int current_row);
  /// The next key begins a new text: the operator has moved on by other means.
  void Forget() { text_.clear(); }
  /// Whether keys typed now would go on with a text begun before.
  [[nodiscard]] bool IsUnderWay() const;

 private:
  QString text_;
  QElapsedTimer since_last_key_;
};

}  // namespace ferrowind::qt
