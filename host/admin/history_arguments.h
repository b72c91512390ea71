#pragma once

#include <cstdint>
#include <string>

namespace ferrowind::host {

/// The moment that `text` names, as the history writes moments (YYYY-MM-DDTHH:MM:SS.sssZ): a date YYYY-MM-DD,
/// its midnight, or a date and a time YYYY-MM-DDTHH:MM, with :SS and a fraction of up to three digits if
/// wanted, a blank instead of the "T", and a "Z" behind it or not. All of it is UTC. Anything else is an
/// `ArgumentError`.
[[nodiscard]] std::string ReadMoment(const std::string& text);

/// The number of an entry. What is no whole number of 32 bits is an `ArgumentError`; whether there is such an
/// entry is not looked up here.
[[nodiscard]] std::int32_t ReadEntryNumber(const std::string& text);

/// A calendar as a person names it.
struct CalendarName {
  /// A code, in capital letters, or a number.
  std::string currency;
  std::int32_t year = 0;
};

/// The calendar that `text` names, "USD/2026" or "840/2026", the code in any letter case. Anything else is an
/// `ArgumentError`; whether there is such a currency is not looked up here.
[[nodiscard]] CalendarName ReadCalendar(const std::string& text);

}  // namespace ferrowind::host
