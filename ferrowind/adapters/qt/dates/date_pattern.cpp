#include "ferrowind/adapters/qt/dates/date_pattern.h"

#include <algorithm>
#include <vector>

namespace ferrowind::qt {
namespace {

/// A run of one field letter, or a text between fields.
struct Piece {
  QString text;
  bool is_field;
};

bool IsFieldLetter(QChar character) { return QStringLiteral("dMy").contains(character); }

void AddLiteral(std::vector<Piece>& pieces, QChar character) {
  if (pieces.empty() || pieces.back().is_field) pieces.push_back({{}, false});
  pieces.back().text += character;
}

void AddFieldLetter(std::vector<Piece>& pieces, QChar letter) {
  if (pieces.empty() || !pieces.back().is_field || pieces.back().text.back() != letter)
    pieces.push_back({{}, true});
  pieces.back().text += letter;
}

std::vector<Piece> PiecesOf(const QString& format) {
  std::vector<Piece> pieces;
  bool is_quoted = false;
  for (const QChar character : format) {
    if (character == QLatin1Char('\'')) {
      is_quoted = !is_quoted;
    } else if (!is_quoted && IsFieldLetter(character)) {
      AddFieldLetter(pieces, character);
    } else {
      AddLiteral(pieces, character);
    }
  }
  return pieces;
}

/// Three letters d and more are the name of a weekday.
bool IsDay(const Piece& piece) {
  return piece.is_field && piece.text.startsWith(QLatin1Char('d')) && piece.text.size() <= 2;
}

bool IsMonth(const Piece& piece) { return piece.is_field && piece.text.startsWith(QLatin1Char('M')); }

}  // namespace

DatePattern::DatePattern(const QString& format) {
  const std::vector<Piece> pieces = PiecesOf(format);
  const auto day = std::find_if(pieces.begin(), pieces.end(), IsDay);
  const auto month = std::find_if(pieces.begin(), pieces.end(), IsMonth);
  if (day == pieces.end() || month == pieces.end()) return;
  is_day_first_ = day < month;
  for (auto piece = std::min(day, month) + 1; piece < std::max(day, month); ++piece) {
    if (!piece->is_field) between_ += piece->text;
  }
  if (day + 1 != pieces.end() && !(day + 1)->is_field)
    day_ending_ = (day + 1)->text.section(QLatin1Char(' '), 0, 0);
}

}  // namespace ferrowind::qt
