#pragma once

#include <string>
#include <vector>

#include "ferrowind/platform/services/locale.h"

namespace ferrowind::win32 {

/// Reads dates as people of a locale of the platform type them: "14 April 2028", "Apr 14", "14/4/28",
/// "04-14", "2028-04-14 Fri". Letter case, the locale's words between the parts and outer blanks make no
/// difference. A year of two digits is one of this century.
///
/// A text that could be two dates, or none, is refused: it is never completed, cut or corrected. Of two
/// numbers one above 12 is the day; else the locale tells the order, but for a hyphen between them where the
/// locale has the day first, since ISO 8601 has the month first with it.
class TypedDates {
 public:
  /// `locale` is a name such as "de-CH", or null for that of the user.
  explicit TypedDates(const wchar_t* locale = nullptr);

  /// A date without a year is in `year`.
  [[nodiscard]] platform::DateReading Read(const std::string& text, int year) const;

 private:
  /// What a text says, part by part.
  struct Parts;
  struct DayAndMonth {
    int day;
    int month;
  };

  [[nodiscard]] bool TakeApart(const std::wstring& text, Parts& parts) const;
  [[nodiscard]] bool TakeWord(const std::wstring& word, Parts& parts) const;
  [[nodiscard]] platform::DateReading Checked(const Parts& parts, int year, const DayAndMonth& read) const;
  [[nodiscard]] platform::DateReading OfNumbers(const Parts& parts, int year, int first, int second) const;
  [[nodiscard]] platform::DateReading NoDate(int year) const;
  [[nodiscard]] std::string Named(const DayAndMonth& read) const;

  /// In folded letter case; of the week from Monday on.
  std::vector<std::vector<std::wstring>> weekdays_;
  std::vector<std::vector<std::wstring>> months_;
  /// The words that stand in dates of the locale, and behind their days.
  std::vector<std::wstring> fillers_;
  /// As they are shown.
  std::vector<std::string> month_names_;
  std::vector<std::string> weekday_names_;
  bool is_day_first_ = true;
};

}  // namespace ferrowind::win32
