#include "ferrowind/adapters/qt/year/year_layout.h"

#include <QFontMetricsF>
#include <algorithm>

#include "ferrowind/adapters/qt/values/qt_text.h"

namespace ferrowind::qt {

using year_engine::YearDays;
using year_engine::YearPlace;

namespace {

constexpr qreal kSmallShare = 0.8;
constexpr qreal kLetterShare = 0.72;
/// The share of a number's height that a mark beside it has.
constexpr qreal kMarkShare = 0.36;
constexpr int kMonths = 12;
/// The numbers of columns that leave no month alone.
constexpr std::array<int, 5> kColumnCounts = {6, 4, 3, 2, 1};

QFont Scaled(const QFont& font, qreal share) {
  QFont scaled = font;
  if (font.pointSizeF() > 0) {
    scaled.setPointSizeF(font.pointSizeF() * share);
  } else {
    scaled.setPixelSize(std::max(1, qRound(font.pixelSize() * share)));
  }
  return scaled;
}

QSizeF LargestLetter(const YearDays& days, const QFont& font) {
  const QFontMetricsF metrics(font);
  qreal width = 0;
  for (const auto& entry : days.Content().legend)
    width = std::max(width, metrics.horizontalAdvance(ToQt(entry.look.letter)));
  return {width, metrics.capHeight()};
}

}  // namespace

YearMetrics::YearMetrics(const YearDays& days, const QFont& base, const QLocale& locale)
    : number_font(base),
      title_font(base),
      small_font(Scaled(base, kSmallShare)),
      letter_font(Scaled(base, kLetterShare)) {
  title_font.setBold(true);
  const QFontMetricsF number(number_font);
  const QFontMetricsF title(title_font);
  const QFontMetricsF small(small_font);
  line = number.height() / 16;
  frame = 2 * line;
  number_width = number.horizontalAdvance(QStringLiteral("30"));
  number_ascent = number.ascent();
  mark_size = number_ascent * kMarkShare;
  letter_size = LargestLetter(days, letter_font);
  gap = number.height() * 0.6;
  header_height = small.height() * 1.1;
  if (days.CalendarCount() <= 1) {
    const qreal beside = std::max(letter_size.width(), mark_size);
    least_cell = {number_width + beside + 2 * frame,
                  std::max(number.height() * 1.08, letter_size.height() + mark_size + 2 * frame)};
    widest_cell = {number_width * 3.4, number.height() * 2};
    title_height = title.height() * 1.2;
    return;
  }
  least_cell = {small.horizontalAdvance(QStringLiteral("30")) * 1.25, small.height() * 1.15};
  widest_cell = {number_width * 2, number.height() * 1.7};
  title_height = title.height() * 1.2;
  qreal caption = 0;
  for (int month = 1; month <= kMonths; ++month) {
    caption =
        std::max(caption, title.horizontalAdvance(locale.standaloneMonthName(month, QLocale::LongFormat)));
  }
  qreal note = 0;
  for (const auto& calendar : days.Content().calendars) {
    caption = std::max(caption, small.horizontalAdvance(ToQt(calendar.caption)));
    for (const auto& month : calendar.months)
      note = std::max(note, small.horizontalAdvance(ToQt(month.text)));
  }
  const qreal space = small.horizontalAdvance(QStringLiteral("  "));
  caption_width = caption + space;
  note_width = note == 0 ? 0 : note + space;
}

YearLayout::YearLayout(const YearDays& days, const YearMetrics& metrics, Reading reading, const QSizeF& room)
    : reading_(reading),
      calendars_(days.CalendarCount()),
      title_height_(metrics.title_height),
      header_height_(metrics.header_height),
      caption_width_(metrics.caption_width),
      note_width_(metrics.note_width),
      gap_(metrics.gap),
      least_cell_(metrics.least_cell),
      widest_cell_(metrics.widest_cell) {
  for (int month = 1; month <= kMonths; ++month) {
    const platform::Date first(days.Year(), month, 1);
    MonthOfYear& of_year = months_[static_cast<std::size_t>(month) - 1];
    of_year.days_before = first.DayOfYear() - 1;
    of_year.first_column = (first.Weekday() - reading_.first_weekday + 7) % 7;
    const int days_up_to =
        month == kMonths ? days.DayCount() : platform::Date(days.Year(), month + 1, 1).DayOfYear() - 1;
    of_year.day_count = days_up_to - of_year.days_before;
  }
  // Of the numbers of columns that fit, the one with the largest days; where the height is too small for all,
  // the most columns that fit the width, so that there is the least to scroll.
  std::optional<int> best;
  qreal largest = 0;
  for (const int columns : kColumnCounts) {
    if (!TryColumns(columns, room)) continue;
    Settle(columns, room);
    const qreal area = std::min(cell_.width(), cell_.height() * 2);
    if (area > largest * 1.02) {
      largest = area;
      best = columns;
    }
  }
  if (!best) {
    fits_height_ = false;
    const qreal width = LeastBlock().width();
    best = 1;
    for (const int columns : kColumnCounts) {
      if (columns * width + (columns + 1) * gap_ > room.width()) continue;
      best = columns;
      break;
    }
  }
  Settle(*best, room);
}

QSizeF YearLayout::LeastBlock() const {
  return {caption_width_ + note_width_ + ColumnsOfDays() * least_cell_.width(),
          title_height_ + header_height_ + RowsOfDays() * least_cell_.height()};
}

bool YearLayout::TryColumns(int columns, const QSizeF& room) const {
  const QSizeF least = LeastBlock();
  const int rows = kMonths / columns;
  return columns * least.width() + (columns + 1) * gap_ <= room.width() &&
         rows * least.height() + (rows + 1) * gap_ <= room.height();
}

void YearLayout::Settle(int columns, const QSizeF& room) {
  columns_ = columns;
  const int rows = kMonths / columns;
  const qreal beside = caption_width_ + note_width_;
  const qreal above = title_height_ + header_height_;
  const qreal free_width = (room.width() - (columns + 1) * gap_) / columns - beside;
  const qreal free_height = (room.height() - (rows + 1) * gap_) / rows - above;
  // Where the height has to be scrolled anyway, days are not squeezed to the least of it.
  const bool is_scrolled = !fits_height_ && reading_.scrolls;
  const qreal least_height = is_scrolled ? least_cell_.height() * 1.15 : least_cell_.height();
  cell_ = {
      std::clamp(free_width / ColumnsOfDays(), least_cell_.width(), widest_cell_.width()),
      std::clamp(free_height / RowsOfDays(), least_height, std::max(least_height, widest_cell_.height()))};
  block_ = {beside + ColumnsOfDays() * cell_.width(), above + RowsOfDays() * cell_.height()};
  size_ = {std::max(room.width(), columns * block_.width() + (columns + 1) * gap_),
           std::max(room.height(), rows * block_.height() + (rows + 1) * gap_)};
}

QPointF YearLayout::OriginOf(int month) const {
  const int rows = kMonths / columns_;
  const int column = (month - 1) % columns_;
  const int row = (month - 1) / columns_;
  // What is left over stands between the months.
  const qreal free_x = (size_.width() - columns_ * block_.width()) / (columns_ + 1);
  const qreal free_y = (size_.height() - rows * block_.height()) / (rows + 1);
  return {free_x + column * (block_.width() + free_x), free_y + row * (block_.height() + free_y)};
}

QRectF YearLayout::Placed(const QRectF& rect) const {
  if (!reading_.is_right_to_left) return rect;
  return {size_.width() - rect.right(), rect.y(), rect.width(), rect.height()};
}

QRectF YearLayout::MonthRect(int month) const { return Placed({OriginOf(month), block_}); }

QRectF YearLayout::TitleRect(int month) const {
  return Placed({OriginOf(month), QSizeF(HasRows() ? caption_width_ : block_.width(), title_height_)});
}

QRectF YearLayout::NumberRect(int month, int column) const {
  const QPointF corner = OriginOf(month) + QPointF(caption_width_ + column * cell_.width(), 0);
  return Placed({corner, QSizeF(cell_.width(), title_height_)});
}

QRectF YearLayout::At(int month, int row, int column) const {
  const QPointF corner = OriginOf(month) + QPointF(caption_width_ + column * cell_.width(),
                                                   title_height_ + header_height_ + row * cell_.height());
  return Placed({corner, cell_});
}

QRectF YearLayout::HeaderRect(int month, int column) const {
  const QPointF corner = OriginOf(month) + QPointF(caption_width_ + column * cell_.width(), title_height_);
  return Placed({corner, QSizeF(cell_.width(), header_height_)});
}

QRectF YearLayout::CaptionRect(int month, int calendar) const {
  const QPointF corner =
      OriginOf(month) + QPointF(0, title_height_ + header_height_ + calendar * cell_.height());
  return Placed({corner, QSizeF(caption_width_, cell_.height())});
}

QRectF YearLayout::NoteRect(int month, int calendar) const {
  const QPointF corner =
      OriginOf(month) +
      QPointF(block_.width() - note_width_, title_height_ + header_height_ + calendar * cell_.height());
  return Placed({corner, QSizeF(note_width_, cell_.height())});
}

QRectF YearLayout::CellRect(const YearPlace& place) const {
  const auto after = std::upper_bound(
      months_.begin(), months_.end(), place.day - 1,
      [](int days_before, const MonthOfYear& month) { return days_before < month.days_before; });
  const MonthOfYear& of_year = *std::prev(after);
  const int month = static_cast<int>(after - months_.begin());
  const int day = place.day - 1 - of_year.days_before;
  if (HasRows()) return At(month, place.calendar, day);
  const int position = of_year.first_column + day;
  return At(month, position / 7, position % 7);
}

std::optional<int> YearLayout::MonthAt(const QPointF& point) const {
  for (int month = 1; month <= kMonths; ++month) {
    if (MonthRect(month).contains(point)) return month;
  }
  return std::nullopt;
}

std::optional<YearPlace> YearLayout::PlaceAt(const QPointF& point) const {
  const auto month = calendars_ == 0 ? std::nullopt : MonthAt(point);
  if (!month) return std::nullopt;
  const MonthOfYear& of_year = months_[static_cast<std::size_t>(*month) - 1];
  // Mirroring a mirrored place gives the place in the order of reading.
  const QPointF inside = Placed({point, QSizeF(0, 0)}).topLeft() - OriginOf(*month) -
                         QPointF(caption_width_, title_height_ + header_height_);
  if (inside.x() < 0 || inside.y() < 0) return std::nullopt;
  const int column = static_cast<int>(inside.x() / cell_.width());
  const int row = static_cast<int>(inside.y() / cell_.height());
  if (column >= ColumnsOfDays() || row >= RowsOfDays()) return std::nullopt;
  const int day = HasRows() ? column : row * 7 + column - of_year.first_column;
  if (day < 0 || day >= of_year.day_count) return std::nullopt;
  return YearPlace{HasRows() ? row : 0, of_year.days_before + day + 1};
}

}  // namespace ferrowind::qt
