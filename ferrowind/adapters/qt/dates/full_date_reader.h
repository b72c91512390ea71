#pragma once

#include <QLocale>
#include <QRegularExpression>
#include <QString>
#include <optional>

#include "ferrowind/adapters/qt/dates/date_reader.h"

namespace ferrowind::qt {

/// Reads a date with or without its year and its weekday: what `DateReader` reads, with a year of four or two
/// digits behind it ("14 April 2028", "14.4.28"), and dates of numbers that begin with the year
/// ("2028-04-14", "2028/4/14", "2028. 4. 14."). A year of two digits is one of this century. A weekday that
/// is not the date's is a reason to refuse it.
class FullDateReader {
 public:
  explicit FullDateReader(const QLocale& locale);

  /// A date without a year is in `year`.
  [[nodiscard]] DateReading Read(const QString& text, int year) const;

 private:
  /// A text without the weekday that it began with, 1 Monday to 7 Sunday, or 0 for none.
  struct WithoutWeekday {
    QString text;
    int weekday = 0;
  };

  [[nodiscard]] WithoutWeekday TakeOffWeekday(const QString& plain) const;
  [[nodiscard]] DateReading ReadPlain(const QString& plain, int year) const;
  /// Nothing for a text of another form.
  [[nodiscard]] std::optional<DateReading> ReadFromYear(const QString& plain) const;
  /// Nothing for a text of another form.
  [[nodiscard]] std::optional<DateReading> ReadUpToYear(const QString& plain) const;
  [[nodiscard]] DateReading NoDate(int year) const;

  QLocale locale_;
  DateReader days_;
  QRegularExpression year_first_;
  QRegularExpression year_last_;
};

}  // namespace ferrowind::qt
