#pragma once

#include <optional>
#include <string>

#include "ferrowind/adapters/win32/dates/typed_date.h"
#include "ferrowind/export.h"
#include "ferrowind/platform/services/locale.h"

namespace ferrowind::win32 {

/// Names and dates in the formats of the user, as Windows' settings of the region have them, or of any other
/// locale of the platform. Why a text is no date is said in English.
class FERROWIND_EXPORT Win32Locale : public platform::Locale {
 public:
  /// `name` is one such as "de-CH"; nothing for the user's.
  explicit Win32Locale(std::optional<std::wstring> name = std::nullopt);

  [[nodiscard]] std::string MonthName(int month) const override;
  [[nodiscard]] std::string WeekdayName(int weekday) const override;
  [[nodiscard]] std::string DateText(const platform::Date& date) const override;
  [[nodiscard]] std::string LongDateText(const platform::Date& date) const override;
  [[nodiscard]] std::string LongDayText(const platform::Date& date) const override;
  [[nodiscard]] platform::DateReading ReadDate(const std::string& text, int year) const override;

 private:
  /// Null for the user's.
  [[nodiscard]] const wchar_t* Name() const { return name_ ? name_->c_str() : nullptr; }
  /// In a format of the platform; dates that it does not know, before 1601, as ISO 8601 has them.
  [[nodiscard]] std::string Formatted(const platform::Date& date, const std::wstring& format) const;

  std::optional<std::wstring> name_;
  TypedDates typed_dates_;
};

}  // namespace ferrowind::win32
