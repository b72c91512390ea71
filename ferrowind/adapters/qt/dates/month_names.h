#pragma once

#include <QLocale>
#include <QString>
#include <QStringView>
#include <vector>

namespace ferrowind::qt {

/// The names that the months have in a locale: in full and short, within a date and standing alone, with and
/// without the dot of an abbreviation, and shortened to their first three or four letters where no other
/// month begins with them. A name that two months have is none.
class MonthNames {
 public:
  explicit MonthNames(const QLocale& locale);

  /// A name of a month found at the beginning or the end of a text.
  struct Found {
    int month;
    /// The text without the name.
    QStringView rest;
    bool is_at_end;
  };
  /// Every name that the text, which is plain (see `PlainText`), begins or ends with. A name does not end in
  /// the middle of a word or number.
  [[nodiscard]] std::vector<Found> FindIn(QStringView text) const;

 private:
  struct Name {
    QString text;
    int month;
  };

  void AddNamesOf(int month, const QLocale& locale);
  void AddFirstLetters();
  void DropSharedNames();

  std::vector<Name> names_;
};

}  // namespace ferrowind::qt
