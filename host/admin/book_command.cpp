#include "host/admin/book_command.h"

#include <algorithm>
#include <ostream>
#include <vector>

#include "ferrowind/almanac/book_text.h"
#include "ferrowind/platform/values/case_fold.h"
#include "ferrowind/platform/values/failure.h"

#include "host/admin/book_shelf.h"
#include "host/admin/book_source.h"
#include "host/delivery/delivered_books.h"
#include "host/session/procedure_session.h"

namespace ferrowind::host {
namespace {

using almanac::NamedBook;
using planning::Currency;
using planning::StoredBook;
using platform::Failure;

Failure Refused(const std::string& why) { return {platform::failure_number::kInvalidArgument, why}; }

std::string CountOf(const almanac::RuleBook& book) {
  return std::to_string(book.rules.size()) + (book.rules.size() == 1 ? " rule" : " rules");
}

/// The delivered book of that currency; of each when `code` is "ALL".
std::vector<NamedBook> DeliveredFor(const std::string& code) {
  std::vector<NamedBook> books = DeliveredBooks();
  if (planning::MeansAllCurrencies(code)) return books;
  for (NamedBook& book : books) {
    if (platform::CompareIgnoringCase(book.name, code) == 0) return {std::move(book)};
  }
  throw Refused("No rule book is delivered for " + code);
}

/// Stores the book unless it stands there already; what was done, in a sentence.
std::string Store(const NamedBook& named, const BookShelf& shelf) {
  const Currency& currency = shelf.Currencies().Named(named.name);
  const StoredBook* const stored = shelf.Find(currency);
  if (stored != nullptr && stored->book == named.book) return currency.code + " has this book already.";
  planning::StoreBook(currency.id, currency.code, stored != nullptr ? stored->fingerprint : "", named.book);
  return currency.code + " has a " + (stored != nullptr ? "new " : "") + "book of " + CountOf(named.book) +
         " now.";
}

}  // namespace

ExitStatus BookShowCommand::Run(const platform::EngineRegistry& engines, std::ostream& out) const {
  std::string text;
  RunWithDatabase(engines, url, [&] {
    const BookShelf shelf;
    const StoredBook& stored = shelf.Get(shelf.Currencies().Named(currency));
    if (!stored.book) {
      throw Refused("The book of " + currency + " cannot be read: " + stored.faults.front());
    }
    text = almanac::WriteBook(*stored.book);
  });
  out << text;
  return ExitStatus::kDone;
}

ExitStatus BookSetCommand::Run(const platform::EngineRegistry& engines, std::istream& in, std::ostream& out,
                               std::ostream& errors) const {
  if (is_delivered && file) throw Refused("A delivered book is not read from a file");
  if (!is_delivered && planning::MeansAllCurrencies(currency))
    throw Refused("A text is the book of one currency, not of all");
  std::vector<NamedBook> books =
      is_delivered ? DeliveredFor(currency)
                   : std::vector<NamedBook>{{currency, ReadBookFrom(file.value_or(""), in)}};
  std::vector<std::string> faults;
  RunWithDatabase(engines, url, [&] {
    const BookShelf shelf;
    for (NamedBook& book : books) book.name = shelf.Currencies().Named(book.name).code;
    faults = shelf.FaultsWith(books);
    if (!faults.empty()) return;
    for (const NamedBook& book : books) out << Store(book, shelf) << '\n';
  });
  if (faults.empty()) return ExitStatus::kDone;
  for (const std::string& fault : faults) errors << "ferrowindctl: " << fault << '\n';
  errors << "Nothing was changed.\n";
  return ExitStatus::kNotDone;
}

ExitStatus BookCheckCommand::Run(const platform::EngineRegistry& engines, std::istream& in,
                                 std::ostream& out) const {
  if (file && planning::MeansAllCurrencies(currency))
    throw Refused("A text is the book of one currency, not of all");
  std::optional<almanac::RuleBook> text;
  if (file) text = ReadBookFrom(*file, in);
  std::vector<std::string> codes;
  std::vector<std::string> faults;
  RunWithDatabase(engines, url, [&] {
    const BookShelf shelf;
    codes = planning::MeansAllCurrencies(currency)
                ? shelf.Codes()
                : std::vector<std::string>{shelf.Currencies().Named(currency).code};
    faults = text ? shelf.FaultsWith({{codes.front(), *text}}) : shelf.FaultsOf(codes);
  });
  for (const std::string& fault : faults) out << fault << ".\n";
  if (!faults.empty()) return ExitStatus::kNotDone;
  out << (codes.size() == 1 ? "The book is" : std::to_string(codes.size()) + " books are") << " in order.\n";
  return ExitStatus::kDone;
}

}  // namespace ferrowind::host
