#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ferrowind/platform/values/date.h"
#include "ferrowind/platform/values/phrase.h"
#include "ferrowind/platform/values/record_set.h"

namespace ferrowind::planning {

/// A currency of the database's dictionary.
struct Currency {
  /// ISO 4217 number.
  std::int32_t id = 0;
  /// ISO 4217 code.
  std::string code = {};
  std::string name = {};
  /// Only money has calendars; not metals, funds and testing codes.
  bool is_money = true;
  /// The last day as legal money; nothing while it is live.
  std::optional<platform::Date> last_day = {};

  /// Whether it is money on any day of `year`.
  [[nodiscard]] bool IsLiveIn(int year) const { return is_money && (!last_day || last_day->Year() >= year); }
};

/// Why there are no calendars of a currency, in words for operators without a full stop: "SEK is money until
/// 2028-12-31". Precondition: it is not live in some year.
[[nodiscard]] platform::Phrase EndOfMoney(const Currency& currency);

/// Whether a person who writes `text` for a currency means all of them: "ALL", in any letter case.
[[nodiscard]] bool MeansAllCurrencies(std::string_view text);

/// What a person writes for that one currency: its code, or its number where the code means all of them.
[[nodiscard]] std::string WrittenFor(const Currency& currency);

/// What the currency is called where nothing beside its code says that it is one: "EUR", and "ALL (Lek)",
/// or "ALL (008)" of one whose name is not known.
[[nodiscard]] std::string UnmistakableCode(const Currency& currency);

/// What sentences and captions call a calendar: "EUR 2028", and "ALL (Lek) 2028".
[[nodiscard]] std::string CalendarName(const Currency& currency, int year);

class CurrencyList {
 public:
  /// Reads those of the calling thread's database. Fails as database_call.h says.
  [[nodiscard]] static CurrencyList Load();
  /// Those of a record set of `CldGetCurrencies` or `CldGetContent`.
  [[nodiscard]] static CurrencyList In(const platform::RecordSet& rows);
  explicit CurrencyList(std::vector<Currency> currencies) : currencies_(std::move(currencies)) {}

  [[nodiscard]] const std::vector<Currency>& All() const { return currencies_; }
  /// Null when there is none of that number.
  [[nodiscard]] const Currency* Find(std::int32_t id) const;
  /// The same; one that is not there has its number for a code, as a calendar may be of a currency that the
  /// dictionary lacks.
  [[nodiscard]] Currency FindOrNumber(std::int32_t id) const;
  /// The currency that a person means by `text`: by its code, in any letter case, or by its number, such as
  /// 8 or 008. A failure that names the text when there is none. "ALL" means all currencies, never the one
  /// that has that code.
  [[nodiscard]] const Currency& Named(std::string_view text) const;

 private:
  [[nodiscard]] const Currency* WithCode(std::string_view code) const;

  std::vector<Currency> currencies_;
};

}  // namespace ferrowind::planning
