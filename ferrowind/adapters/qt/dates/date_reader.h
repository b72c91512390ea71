#pragma once

#include <QDate>
#include <QLocale>
#include <QRegularExpression>
#include <QString>
#include <optional>

#include "ferrowind/adapters/qt/dates/month_names.h"
#include "ferrowind/adapters/qt/dates/numeric_dates.h"

namespace ferrowind::qt {

/// What a typed text is: a day, or why it is none.
struct DateReading {
  /// Invalid when the text is refused.
  QDate date = {};
  /// A sentence or two for the operator; empty when there is a date.
  QString refusal = {};
  /// The text has not the form of a date at all; else it has, of one that is none or of two.
  bool is_another_text = false;
};

/// Reads a day and a month without a year as an operator writes them in one locale: "31 December",
/// "December 31", "31 Dec.", "31.12", "31.12.", "31/12", "12-31". Upper and lower case, the digits of any
/// script, blanks around and the locale's endings of a day ("31st") make no difference.
///
/// A text that could be two days, or none, is refused: it is never completed, cut or corrected. Of two
/// numbers one above 12 is the day; else `NumericDates` tells the order.
class DateReader {
 public:
  explicit DateReader(const QLocale& locale);

  [[nodiscard]] DateReading Read(const QString& text, int year) const;

 private:
  struct DayAndMonth {
    int day;
    int month;
    bool operator==(const DayAndMonth&) const = default;
  };

  [[nodiscard]] std::optional<DateReading> ReadNamed(const QString& plain, int year) const;
  [[nodiscard]] std::optional<DateReading> ReadNumbers(const QString& plain, int year) const;
  [[nodiscard]] DateReading InYear(const DayAndMonth& read, int year) const;
  [[nodiscard]] DateReading NoDate() const;
  [[nodiscard]] DateReading TwoDays(const QString& typed, const DayAndMonth& one,
                                    const DayAndMonth& other) const;
  [[nodiscard]] QString Named(const DayAndMonth& read) const;

  QLocale locale_;
  MonthNames months_;
  NumericDates numbers_;
  QRegularExpression day_before_month_;
  QRegularExpression day_after_month_;
  QRegularExpression two_numbers_;
};

}  // namespace ferrowind::qt
