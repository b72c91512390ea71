#include "ferrowind/planning/database_content.h"

#include "ferrowind/planning/calendar_store.h"
#include "ferrowind/planning/database_call.h"
#include "ferrowind/planning/days_text.h"
#include "ferrowind/planning/in_words.h"
#include "ferrowind/platform/values/conversion.h"

namespace ferrowind::planning {
namespace {

using platform::RecordSet;
using WrittenCurrencies = std::map<std::int32_t, WrittenCurrency>;

void AddCalendars(const RecordSet& rows, WrittenCurrencies& written) {
  const std::size_t currency = rows.FieldNamed("ID1");
  const std::size_t year = rows.FieldNamed("Year1");
  const std::size_t days = rows.FieldNamed("Days");
  for (std::size_t i = 0; i < rows.RowCount(); ++i) {
    const auto row = rows.BookmarkAt(i);
    const auto* const text = rows.Cell(row, days).If<std::string>();
    written[platform::ToInt32(rows.Cell(row, currency))].calendars.emplace_back(
        platform::ToInt32(rows.Cell(row, year)), text == nullptr ? std::string_view() : *text);
  }
}

void AddNames(const CurrencyList& list, WrittenCurrencies& written) {
  for (auto& [id, currency] : written) {
    const Currency* const known = list.Find(id);
    currency.code = known != nullptr ? known->code : std::to_string(id);
    currency.called = known != nullptr ? UnmistakableCode(*known) : currency.code;
    if (known != nullptr) currency.last_day = known->last_day;
  }
}

}  // namespace

std::string WrittenCurrency::Text() const {
  std::string text = std::to_string(code.size()) + ':' + code + std::to_string(called.size()) + ':' + called +
                     (last_day ? last_day->ToIso() : std::string()) + '\n';
  for (const auto& [year, days] : calendars) {
    text += std::to_string(year) + ',' + std::to_string(days.size()) + ':';
    text += days;
  }
  text += '\n';
  if (book) book->AppendText(text);
  return text;
}

almanac::ReviewedCurrency WrittenCurrency::Read(const almanac::DateTables& tables) const {
  almanac::ReviewedCurrency currency{code, {}, {}, last_day, {}};
  for (const auto& [year, days] : calendars) currency.calendars.push_back({year, ReadDaysText(days)});
  if (book) {
    StoredBook stored = book->Read(tables);
    if (stored.faults.empty()) currency.book = std::move(stored.book);
    currency.book_faults = std::move(stored.faults);
  }
  return currency;
}

almanac::RuleDirectory DatabaseContent::ReadRules() const { return almanac::RuleDirectory(RulesIn(*rules)); }

DatabaseContent LoadContent() {
  const CallAnswer answer =
      CallDatabase(InWords("Reading the calendars and the rule books"), "CldGetContent", {}, 5);
  const auto& calendars = answer.record_sets[0];
  WrittenCurrencies written;
  AddCalendars(*calendars, written);
  for (WrittenBook& book : BooksIn(answer.record_sets[2], answer.record_sets[3])) {
    const std::int32_t currency = book.Currency();
    written[currency].book = std::move(book);
  }
  CurrencyList currencies = CurrencyList::In(*answer.record_sets[4]);
  AddNames(currencies, written);
  return {std::move(currencies), std::move(written), calendars->RowCount(), answer.record_sets[1], calendars};
}

}  // namespace ferrowind::planning
