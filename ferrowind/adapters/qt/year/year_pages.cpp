#include "ferrowind/adapters/qt/year/year_pages.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "ferrowind/adapters/qt/dates/long_date.h"
#include "ferrowind/adapters/qt/look/text_line.h"
#include "ferrowind/adapters/qt/values/qt_text.h"
#include "ferrowind/adapters/qt/year/legend_painter.h"
#include "ferrowind/adapters/qt/year/year_colors.h"
#include "ferrowind/adapters/qt/year/year_layout.h"
#include "ferrowind/adapters/qt/year/year_painter.h"

namespace ferrowind::qt {
namespace {

constexpr qreal kGap = 12;
constexpr int kHeadingSize = 20;
constexpr int kTextSize = 10;
/// From the largest on, the first with which all months fit on a page; of the last, months go on the next.
constexpr std::array<int, 5> kMonthSizes = {12, 11, 10, 9, 8};
/// What the months take of a page that they share with the notes.
constexpr qreal kMonthsShare = 0.66;
/// The months of several calendars share theirs only while they can be read as easily.
constexpr int kLeastBesideNotes = 9;
constexpr int kNoteColumns = 2;

QFont PageFont(int pixel_size) {
  QFont font = QGuiApplication::font();
  font.setPixelSize(pixel_size);
  return font;
}

}  // namespace

/// Where the painting is: it goes down the page, and on to the next.
class YearPages::Flow {
 public:
  /// Without `next` there is one page, without an end. `head` stands above further pages, with their number.
  Flow(QPainter& target, const QSizeF& size, const QString& head, std::function<void()> next)
      : painter(target), page(size), head_(head), new_page_(std::move(next)) {}

  /// What is left of the page.
  [[nodiscard]] qreal Room() const { return new_page_ ? page.height() - y : kEndless; }
  /// What was laid out to fill the page may be higher by a rounding.
  [[nodiscard]] bool HasRoomFor(qreal height) const { return height <= Room() + 0.5; }
  void TurnPage() {
    new_page_();
    ++number_;
    const QFont font = PageFont(kTextSize);
    const qreal height = QFontMetricsF(font).height();
    const QRectF line(0, 0, page.width(), height);
    painter.setFont(font);
    painter.setPen(colors.muted);
    DrawTextLine(painter, line.adjusted(0, 0, -height * 3, 0), Qt::AlignLeading, head_);
    painter.drawText(line, Qt::AlignTrailing | Qt::TextSingleLine, QString::number(number_));
    start_ = height + kGap;
    y = start_;
  }
  /// Whether nothing stands on the page yet.
  [[nodiscard]] bool IsFresh() const { return y == start_; }

  QPainter& painter;
  QSizeF page;
  YearColors colors = YearColors::OnPaper();
  qreal y = 0;

 private:
  static constexpr qreal kEndless = 1e6;

  const QString& head_;
  std::function<void()> new_page_;
  int number_ = 1;
  /// Where the page begins below its head.
  qreal start_ = 0;
};

YearPages::YearPages(const year_engine::YearDays& days, QString heading, QLocale locale,
                     Qt::LayoutDirection direction)
    : days_(days), heading_(std::move(heading)), locale_(std::move(locale)), direction_(direction) {}

QPageLayout::Orientation YearPages::Orientation() const {
  return days_.CalendarCount() > 1 ? QPageLayout::Landscape : QPageLayout::Portrait;
}

void YearPages::PaintOnPages(QPainter& painter, const QSizeF& page,
                             const std::function<void()>& new_page) const {
  Flow flow(painter, page, heading_, new_page);
  Paint(flow);
}

qreal YearPages::PaintOnRoll(QPainter& painter, const QSizeF& page) const {
  Flow flow(painter, page, heading_, {});
  Paint(flow);
  return flow.y;
}

void YearPages::Paint(Flow& flow) const {
  flow.painter.setLayoutDirection(direction_);
  QFont heading_font = PageFont(kHeadingSize);
  heading_font.setBold(true);
  PaintLines(flow, heading_font, heading_);
  PaintLines(flow, PageFont(kTextSize), ToQt(days_.Content().summary));
  flow.y += kGap / 2;
  PaintMonths(flow);
  PaintNotes(flow);
}

void YearPages::PaintLines(Flow& flow, const QFont& font, const QString& text) {
  if (text.isEmpty()) return;
  const QRectF room(0, flow.y, flow.page.width(), flow.page.height());
  const QRectF area = QFontMetricsF(font).boundingRect(room, Qt::TextWordWrap, text);
  flow.painter.setFont(font);
  flow.painter.setPen(flow.colors.text);
  flow.painter.drawText(QRectF(0, flow.y, flow.page.width(), area.height()),
                        Qt::AlignLeading | Qt::TextWordWrap, text);
  flow.y += area.height();
}

void YearPages::PaintMonths(Flow& flow) const {
  const QFont text_font = PageFont(kTextSize);
  const LegendPainter legend(days_.Content().legend, text_font, direction_ == Qt::RightToLeft);
  const qreal legend_height = legend.HeightFor(flow.page.width()) + kGap;
  const bool has_rows = days_.CalendarCount() > 1;
  const YearLayout::Reading reading{static_cast<int>(locale_.firstDayOfWeek()) % 7 + 1,
                                    direction_ == Qt::RightToLeft, false};
  std::optional<YearMetrics> metrics;
  YearLayout layout;
  const auto fits_share = [&](qreal share, int least_size) {
    const QSizeF room(flow.page.width(), flow.page.height() * share - flow.y - legend_height);
    for (const int size : kMonthSizes) {
      if (size < least_size) break;
      metrics.emplace(days_, PageFont(size), locale_);
      layout = YearLayout(days_, *metrics, reading, room);
      if (layout.FitsHeight()) return true;
    }
    return false;
  };
  const bool leaves_room = fits_share(kMonthsShare, has_rows ? kLeastBesideNotes : kMonthSizes.back());
  if (has_rows && !leaves_room) (void)fits_share(1, kMonthSizes.back());
  const YearPainter year(days_, *metrics, layout, flow.colors, locale_);
  // Months stand in rows; a row goes onto the next page as a whole.
  qreal top = 0;
  qreal bottom = 0;
  const auto paint_part = [&] {
    flow.painter.save();
    flow.painter.translate(0, flow.y - top);
    year.Paint(flow.painter, QRectF(0, top, layout.Size().width(), bottom - top), {});
    flow.painter.restore();
    flow.y += bottom - top;
  };
  for (int month = 1; month <= 12; ++month) {
    const qreal month_bottom = layout.MonthRect(month).bottom() + metrics->gap;
    if (month_bottom > bottom && bottom > top && !flow.HasRoomFor(month_bottom - top)) {
      paint_part();
      flow.TurnPage();
      top = layout.MonthRect(month).top() - metrics->gap;
    }
    bottom = std::max(bottom, month_bottom);
  }
  paint_part();
  if (!flow.HasRoomFor(legend_height)) flow.TurnPage();
  legend.Paint(flow.painter, QRectF(0, flow.y, flow.page.width(), legend_height), flow.colors);
  flow.y += legend_height;
}

void YearPages::PaintNotes(Flow& flow) const {
  const auto& notes = days_.Content().notes;
  if (notes.empty()) return;
  const QFont font = PageFont(kTextSize);
  const QFontMetricsF metrics(font);
  const qreal width = (flow.page.width() - (kNoteColumns - 1) * 2 * kGap) / kNoteColumns;
  qreal date_width = 0;
  for (int day = 1; day <= days_.DayCount(); ++day)
    date_width = std::max(date_width, metrics.horizontalAdvance(LongDay(ToQt(days_.DateOf(day)), locale_)));
  date_width += kGap;
  const auto height_of = [&](const platform::YearNote& note) {
    const QRectF box(0, 0, width - date_width, 1e6);
    return metrics.boundingRect(box, Qt::TextWordWrap, ToQt(note.text)).height() + metrics.height() * 0.15;
  };
  qreal left_height = 0;
  for (const auto& note : notes) left_height += height_of(note);

  flow.painter.setFont(font);
  auto note = notes.begin();
  while (note != notes.end()) {
    // As long columns as needed for what is left, and as short as possible.
    const qreal top = flow.y;
    const bool is_fresh = flow.IsFresh();
    const qreal wanted = left_height / kNoteColumns + metrics.height() * 2;
    const qreal bottom = top + std::min(flow.Room(), wanted);
    qreal lowest = top;
    for (int column = 0; column < kNoteColumns && note != notes.end(); ++column) {
      const qreal x = column * (width + 2 * kGap);
      qreal y = top;
      while (note != notes.end() && (y + height_of(*note) <= bottom || (y == top && is_fresh))) {
        const bool is_mirrored = direction_ == Qt::RightToLeft;
        const qreal start = is_mirrored ? flow.page.width() - x - width : x;
        const QRectF date(is_mirrored ? start + width - date_width : start, y, date_width, metrics.height());
        const QRectF text(is_mirrored ? start : start + date_width, y, width - date_width, height_of(*note));
        flow.painter.setPen(flow.colors.muted);
        flow.painter.drawText(date, Qt::AlignLeading,
                              LongDay(ToQt(days_.DateOf(note->day_of_year)), locale_));
        flow.painter.setPen(flow.colors.text);
        flow.painter.drawText(text, Qt::AlignLeading | Qt::TextWordWrap, ToQt(note->text));
        y += height_of(*note);
        left_height -= height_of(*note);
        ++note;
      }
      lowest = std::max(lowest, y);
    }
    flow.y = lowest;
    if (note == notes.end()) break;
    flow.TurnPage();
  }
}

}  // namespace ferrowind::qt
