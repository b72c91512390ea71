#include "ferrowind/adapters/qt/grid/type_ahead.h"

#include <QApplication>
#include <algorithm>

namespace ferrowind::qt {

bool TypeAhead::IsUnderWay() const {
  return !text_.isEmpty() && since_last_key_.isValid() &&
         !since_last_key_.hasExpired(QApplication::keyboardInputInterval());
}

std::optional<int> TypeAhead::Search(const QString& keys, const GridContent& content, std::int16_t column,
                                     int current_row) {
  if (!IsUnderWay()) text_.clear();
  since_last_key_.restart();
  text_ += keys;

  const int count = static_cast<int>(content.Rows().RowCount());
  if (count == 0 || text_.isEmpty()) return std::nullopt;
  const auto find = [&](const QString& wanted, int first) -> std::optional<int> {
    for (int step = 0; step < count; ++step) {
      const int row = (first + step) % count;
      const auto record = content.RecordInRow(static_cast<std::uint32_t>(row));
      if (record && content.Cells().ShownText(column, *record).startsWith(wanted, Qt::CaseInsensitive))
        return row;
    }
    return std::nullopt;
  };
  const bool begins_anew = text_.size() == keys.size();
  const int next_row = current_row + 1;
  if (const auto row = find(text_, begins_anew ? next_row : std::max(current_row, 0))) return row;
  const bool is_one_key_repeated =
      std::all_of(text_.begin(), text_.end(), [&](QChar character) { return character == text_.front(); });
  return is_one_key_repeated ? find(text_.left(1), next_row) : std::nullopt;
}

}  // namespace ferrowind::qt
