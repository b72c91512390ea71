#pragma once

#include <QCoreApplication>
#include <QPixmap>
#include <QWidget>
#include <string>
#include <vector>

#include "ferrowind/adapters/qt/table/table_model.h"
#include "ferrowind/adapters/qt/table/table_view.h"

namespace ferrowind::gui {

/// The texts of a row, with " | " between the cells.
inline std::string RowText(const qt::TableView& table, int row) {
  std::string text;
  for (int column = 0; column < table.Model()->columnCount(); ++column) {
    text += (column == 0 ? "" : " | ") +
            table.Model()->index(row, column).data(Qt::DisplayRole).toString().toStdString();
  }
  return text;
}

inline std::vector<std::string> RowTexts(const qt::TableView& table) {
  std::vector<std::string> texts;
  for (int row = 0; row < table.Model()->rowCount(); ++row) texts.push_back(RowText(table, row));
  return texts;
}

/// For a look by a person.
inline void Picture(QWidget& window, const std::string& name) {
  QCoreApplication::processEvents();
  const QString folder = qEnvironmentVariable("FERROWIND_PICTURES");
  if (!folder.isEmpty()) window.grab().save(QStringLiteral("%1/%2.png").arg(folder, name.c_str()));
}

}  // namespace ferrowind::gui
