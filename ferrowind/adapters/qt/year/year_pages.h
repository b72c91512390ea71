#pragma once

#include <QFont>
#include <QLocale>
#include <QPageLayout>
#include <QPainter>
#include <QSizeF>
#include <QString>
#include <functional>

#include "ferrowind/adapters/year_engine/year_days.h"

namespace ferrowind::qt {

/// A year on paper: a heading, the months, what their looks mean, and the notes in two columns.
///
/// Lengths are in 96ths of an inch.
class YearPages {
 public:
  static constexpr qreal kUnitsAnInch = 96;

  /// `days` must outlive the pages.
  YearPages(const year_engine::YearDays& days, QString heading, QLocale locale,
            Qt::LayoutDirection direction);

  [[nodiscard]] const QString& Heading() const { return heading_; }
  /// Of a page that suits it best: upright for one calendar, across for several.
  [[nodiscard]] QPageLayout::Orientation Orientation() const;
  /// Paints onto pages of that size, each from its top left corner on; `new_page` is called between two
  /// pages.
  void PaintOnPages(QPainter& painter, const QSizeF& page, const std::function<void()>& new_page) const;
  /// Paints all below one another, the months as on such a page. Returns the height that it takes.
  qreal PaintOnRoll(QPainter& painter, const QSizeF& page) const;

 private:
  class Flow;

  void Paint(Flow& flow) const;
  /// Goes down below them.
  static void PaintLines(Flow& flow, const QFont& font, const QString& text);
  void PaintMonths(Flow& flow) const;
  void PaintNotes(Flow& flow) const;

  const year_engine::YearDays& days_;
  QString heading_;
  QLocale locale_;
  Qt::LayoutDirection direction_;
};

}  // namespace ferrowind::qt
