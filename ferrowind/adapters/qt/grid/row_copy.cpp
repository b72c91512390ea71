#include "ferrowind/adapters/qt/grid/row_copy.h"

#include <algorithm>

#include "ferrowind/adapters/qt/values/qt_text.h"

namespace ferrowind::qt {

namespace {

/// Collects the table in both forms.
class TableWriter {
 public:
  TableWriter() { html_ += QStringLiteral("<html><head><meta charset=\"utf-8\"></head><body><table>"); }

  void BeginRow() {
    is_first_cell_ = true;
    html_ += QStringLiteral("<tr>");
  }
  void Cell(const QString& text, const char* element, bool is_number) {
    if (!is_first_cell_) text_ += QLatin1Char('\t');
    is_first_cell_ = false;
    QString plain = text;
    // A tab or a line break inside a cell would begin another one where the text is pasted.
    for (QChar& character : plain) {
      if (character == QLatin1Char('\t') || character == QLatin1Char('\n') ||
          character == QLatin1Char('\r')) {
        character = QLatin1Char(' ');
      }
    }
    text_ += plain;
    html_ += QLatin1Char('<') + QLatin1String(element);
    if (is_number) html_ += QStringLiteral(" align=\"right\"");
    html_ += QLatin1Char('>') + text.toHtmlEscaped() + QStringLiteral("</") + QLatin1String(element) +
             QLatin1Char('>');
  }
  void EndRow() {
    text_ += QLatin1Char('\n');
    html_ += QStringLiteral("</tr>");
  }

  [[nodiscard]] std::unique_ptr<QMimeData> Finish() {
    html_ += QStringLiteral("</table></body></html>");
    auto data = std::make_unique<QMimeData>();
    data->setText(text_);
    data->setHtml(html_);
    return data;
  }

 private:
  QString text_;
  QString html_;
  bool is_first_cell_ = true;
};

}  // namespace

std::unique_ptr<QMimeData> CopyOfRows(const GridContent& content, const std::vector<std::int16_t>& columns,
                                      const std::vector<int>& rows, bool with_headers) {
  TableWriter table;
  if (with_headers) {
    table.BeginRow();
    for (const std::int16_t column : columns)
      table.Cell(ToQt(content.Columns()[column].Caption()), "th", false);
    table.EndRow();
  }
  const bool has_records = std::any_of(rows.begin(), rows.end(), [&](int row) {
    return content.RecordInRow(static_cast<std::uint32_t>(row)).has_value();
  });
  for (const int row : rows) {
    const auto shown = content.Rows().RowAt(static_cast<std::uint32_t>(row));
    if (shown.is_group) {
      if (has_records) continue;
      const GroupLabel label = content.LabelOf(shown.group);
      table.BeginRow();
      table.Cell(label.caption, "td", false);
      table.Cell(label.value, "td", false);
      table.Cell(QString::number(label.record_count), "td", true);
      table.EndRow();
      continue;
    }
    const grid_engine::Record record = content.Rows().RecordAt(shown.position);
    table.BeginRow();
    for (const std::int16_t column : columns) {
      const bool is_number = content.Cells().ShowsNumber(column, record);
      table.Cell(content.Cells().ShownText(column, record), "td", is_number);
    }
    table.EndRow();
  }
  return table.Finish();
}

}  // namespace ferrowind::qt
