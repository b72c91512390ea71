#include "host/admin/book_command.h"

#include <cstddef>
#include <ostream>
#include <vector>

#include "ferrowind/almanac/book_text.h"
#include "ferrowind/planning/book_shelf.h"
#include "ferrowind/platform/values/failure.h"

#include "host/admin/book_difference.h"
#include "host/admin/book_source.h"
#include "host/admin/database_content.h"
#include "host/admin/guarded_stream.h"
#include "host/admin/text_escapes.h"
#include "host/delivery/delivered_books.h"
#include "host/delivery/delivered_tables.h"

namespace ferrowind::host {
namespace {

using almanac::NamedBook;
using planning::BookShelf;
using planning::Currency;
using planning::PlacedBook;
using planning::StoredBook;
using platform::Failure;

Failure Refused(const std::string& why) { return {platform::failure_number::kInvalidArgument, why}; }

std::string CountOf(const almanac::RuleBook& book) {
  return std::to_string(book.rules.size()) + (book.rules.size() == 1 ? " rule" : " rules");
}

Failure TextIsOfOneBook(const std::string& currency) {
  return Refused("A text is the book of one currency, and " + currency + " means all of them");
}

/// The delivered books of the currency that `text` names, or of all, each for its currency on the shelf.
std::vector<PlacedBook> DeliveredFor(const std::string& text, const BookShelf& shelf) {
  std::vector<PlacedBook> placed;
  const bool are_all = planning::MeansAllCurrencies(text);
  const std::string code = are_all ? "" : shelf.Currencies().Named(text).code;
  for (NamedBook& book : DeliveredBooks()) {
    if (are_all || book.name == code) placed.push_back({shelf.Currencies().Named(book.name), book.book});
  }
  if (placed.empty()) throw Refused("No rule book is delivered for " + code);
  return placed;
}

/// A failure unless the text of that state was made of the book that is stored.
void RequireState(const std::string& state, const BookSource& source, const Currency& currency,
                  const StoredBook* stored) {
  if (stored != nullptr && stored->fingerprint == state) return;
  throw Refused(
      source.name + " was made of another state of the book of " + currency.code +
      " than is stored now, so somebody may have changed the book meanwhile. \"book show\" it again "
      "and make your changes in that text, or take the line \"# state ...\" out of yours to "
      "replace the book all the same");
}

/// Stores the book unless it stands there already; what was done, in lines.
void Store(const PlacedBook& placed, const std::optional<BookSource>& source, const BookShelf& shelf,
           std::ostream& out) {
  const Currency& currency = placed.currency;
  const StoredBook* const stored = shelf.Find(currency);
  if (stored != nullptr && stored->book == placed.book) {
    out << currency.code << " has this book already.\n";
    return;
  }
  if (source && source->state) RequireState(*source->state, *source, currency, stored);
  planning::StoreBook(currency.id, currency.code, stored != nullptr ? stored->fingerprint : "", placed.book);
  if (stored != nullptr && stored->book) {
    for (const std::string& line : DifferenceOf(*stored->book, placed.book)) out << line << '\n';
  }
  out << currency.code << " has a " << (stored != nullptr ? "new " : "") << "book of " << CountOf(placed.book)
      << " now.\n";
}

/// What is wrong in the lines of the text.
std::vector<std::string> FaultsOfLines(const BookSource& source) {
  std::vector<std::string> faults;
  for (const almanac::TextError& error : source.reading.errors) {
    faults.push_back(source.name + ": " + error.Description());
  }
  return faults;
}

PlacedBook Placed(const BookSource& source, const Currency& currency) {
  return {currency, source.reading.book, source.reading.lines, source.name};
}

ExitStatus TellFaults(const std::vector<std::string>& faults, std::ostream& errors) {
  for (const std::string& fault : faults) errors << "ferrowindctl: " << OneLine(fault) << '\n';
  errors << "ferrowindctl: nothing was changed\n";
  return ExitStatus::kNotDone;
}

}  // namespace

ExitStatus BookShowCommand::Run(const platform::EngineRegistry& engines, std::ostream& out) const {
  std::string text;
  RunWithCalendars(engines, url, [&] {
    const BookShelf shelf(DeliveredDateTables());
    const Currency& named = shelf.Currencies().Named(currency);
    const StoredBook& stored = shelf.Get(named);
    if (!stored.book) {
      throw Refused("The book of " + named.code + " cannot be read: " + stored.faults.front());
    }
    text = StateLine(stored.fingerprint) + almanac::WriteBook(*stored.book);
  });
  ForPrograms(out) << text;
  return ExitStatus::kDone;
}

ExitStatus BookSetCommand::Run(const platform::EngineRegistry& engines, std::istream& in, std::ostream& out,
                               std::ostream& errors) const {
  if (is_delivered && file) throw Refused("A delivered book is not read from a file");
  if (!is_delivered && planning::MeansAllCurrencies(currency)) throw TextIsOfOneBook(currency);
  std::optional<BookSource> source;
  if (!is_delivered) {
    source = ReadBookFrom(file.value_or("-"), in);
    if (!source->reading.errors.empty()) return TellFaults(FaultsOfLines(*source), errors);
  }
  std::vector<std::string> faults;
  RunWithCalendars(engines, url, [&] {
    const BookShelf shelf(DeliveredDateTables());
    const std::vector<PlacedBook> books =
        source ? std::vector{Placed(*source, shelf.Currencies().Named(currency))}
               : DeliveredFor(currency, shelf);
    faults = shelf.FaultsWith(books);
    if (!faults.empty()) return;
    for (const PlacedBook& book : books) Store(book, source, shelf, out);
  });
  return faults.empty() ? ExitStatus::kDone : TellFaults(faults, errors);
}

ExitStatus BookCheckCommand::Run(const platform::EngineRegistry& engines, std::istream& in,
                                 std::ostream& out) const {
  const bool are_all = planning::MeansAllCurrencies(currency);
  if (file && are_all) throw TextIsOfOneBook(currency);
  std::optional<BookSource> source;
  if (file) source = ReadBookFrom(*file, in);
  std::size_t count = 1;
  std::vector<std::string> faults;
  RunWithCalendars(engines, url, [&] {
    const BookShelf shelf(DeliveredDateTables());
    if (!source) {
      const auto currencies = are_all ? shelf.WithBooks() : std::vector{shelf.Currencies().Named(currency)};
      count = currencies.size();
      faults = shelf.FaultsOf(currencies);
      return;
    }
    const Currency& named = shelf.Currencies().Named(currency);
    faults = FaultsOfLines(*source);
    if (faults.empty()) faults = shelf.FaultsWith({Placed(*source, named)});
  });
  for (const std::string& fault : faults) out << OneLine(fault) << ".\n";
  if (!faults.empty()) return ExitStatus::kNotDone;
  out << (count == 1 ? "The book is" : std::to_string(count) + " books are") << " in order.\n";
  return ExitStatus::kDone;
}

}  // namespace ferrowind::host
