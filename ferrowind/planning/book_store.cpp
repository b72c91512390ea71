#include "ferrowind/planning/book_store.h"

#include <cstddef>
#include <utility>

#include "ferrowind/almanac/book_faults.h"
#include "ferrowind/planning/database_call.h"
#include "ferrowind/planning/in_words.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/json_text.h"

namespace ferrowind::planning {
namespace {

using almanac::BookRule;
using almanac::RuleBook;
using almanac::RuleKind;
using platform::Failure;
using platform::RecordSet;
using platform::Value;

/// The places of what makes a rule, looked up once for many rows.
struct RuleFields {
  explicit RuleFields(const RecordSet& rules)
      : currency(rules.FieldNamed("ID1")),
        position(rules.FieldNamed("Position")),
        name(rules.FieldNamed("Name1")),
        kind(rules.FieldNamed("TID1")),
        expression(rules.FieldNamed("Expression")),
        comment(rules.FieldNamed("Comment")),
        moved_name(rules.FieldNamed("MovedName")) {}

  std::size_t currency, position, name, kind, expression, comment, moved_name;
};

/// A rule of the book, which was written by whoever may write books, so by other programs too.
BookRule ReadRule(const RecordSet& rules, RecordSet::Bookmark row, const RuleFields& fields) {
  BookRule rule;
  rule.name = platform::ToText(rules.Cell(row, fields.name));
  rule.comment = platform::ToTextOrEmpty(rules.Cell(row, fields.comment));
  rule.moved_name = platform::ToTextOrEmpty(rules.Cell(row, fields.moved_name));
  const std::int32_t kind = platform::ToInt32(rules.Cell(row, fields.kind));
  if (kind < static_cast<std::int32_t>(RuleKind::kWorkingDay) ||
      kind > static_cast<std::int32_t>(RuleKind::kPoint)) {
    throw Failure(platform::failure_number::kInvalidArgument,
                  InWords("there is no type %1 of rules", {std::to_string(kind)}));
  }
  rule.kind = static_cast<RuleKind>(kind);
  rule.expression = almanac::DateExpression::Parse(platform::ToText(rules.Cell(row, fields.expression)));
  return rule;
}

/// Takes the rows of the currency off `rules`, which are ordered by currency, from the one at `next` on.
void ReadRules(const RecordSet& rules, const RuleFields& fields, std::size_t& next, RuleBook& book,
               StoredBook& stored) {
  for (; next < rules.RowCount(); ++next) {
    const auto row = rules.BookmarkAt(next);
    if (platform::ToInt32(rules.Cell(row, fields.currency)) != stored.currency) return;
    try {
      book.rules.push_back(ReadRule(rules, row, fields));
    } catch (const Failure& failure) {
      stored.faults.push_back(
          InWords("The rule %1, \"%2\": %3",
                  {platform::ToTextOrEmpty(rules.Cell(row, fields.position)),
                   platform::ToTextOrEmpty(rules.Cell(row, fields.name)), failure.Description()}));
    }
  }
}

std::vector<StoredBook> Load(const std::string& doing, const Value& currency,
                             const almanac::DateTables& tables) {
  SourceValues parameters;
  parameters.Add("ID1", currency);
  const CallAnswer answer = CallDatabase(doing, "CldGetBook", parameters, 2);
  RecordSet& heads = *answer.record_sets[0];
  const RecordSet& rules = *answer.record_sets[1];
  const RuleFields fields(rules);
  std::size_t next_rule = 0;
  std::vector<StoredBook> books;
  for (heads.MoveFirst(); !heads.Eof(); heads.MoveNext()) {
    StoredBook& stored = books.emplace_back();
    stored.currency = platform::ToInt32(heads["ID1"]);
    stored.fingerprint = platform::ToTextOrEmpty(heads["Fingerprint"]);
    RuleBook book;
    book.publisher = platform::ToTextOrEmpty(heads["Publisher"]);
    book.document = platform::ToTextOrEmpty(heads["Document"]);
    if (!heads["FromYear"].IsEmpty()) book.since = platform::ToInt32(heads["FromYear"]);
    ReadRules(rules, fields, next_rule, book, stored);
    if (!stored.faults.empty()) continue;
    stored.faults = almanac::FaultsOf(book, tables);
    stored.book = std::move(book);
  }
  return books;
}

std::string RulesJson(const RuleBook& book) {
  std::string json = "[";
  for (const BookRule& rule : book.rules) {
    if (json.size() > 1) json += ',';
    json += "{\"Name1\":" + platform::JsonText(rule.name) +
            ",\"TID1\":" + std::to_string(static_cast<int>(rule.kind)) +
            ",\"Expression\":" + platform::JsonText(rule.expression.ToText());
    if (!rule.comment.empty()) json += ",\"Comment\":" + platform::JsonText(rule.comment);
    if (!rule.moved_name.empty()) json += ",\"MovedName\":" + platform::JsonText(rule.moved_name);
    json += '}';
  }
  return json + ']';
}

}  // namespace

std::vector<StoredBook> LoadBooks(const almanac::DateTables& tables) {
  return Load(InWords("Reading the books"), {}, tables);
}

std::optional<StoredBook> LoadBook(std::int32_t id, const std::string& code,
                                   const almanac::DateTables& tables) {
  std::vector<StoredBook> books = Load(InWords("Reading the book of %1", {code}), id, tables);
  if (books.empty()) return std::nullopt;
  return std::move(books.front());
}

void StoreBook(std::int32_t id, const std::string& code, const std::string& expected, const RuleBook& book) {
  SourceValues parameters;
  parameters.Add("ID1", id);
  parameters.Add("Expected", expected);
  parameters.Add("Publisher", book.publisher);
  parameters.Add("Document", book.document);
  parameters.Add("Rules", RulesJson(book));
  if (book.since) parameters.Add("FromYear", static_cast<std::int32_t>(*book.since));
  (void)CallDatabase(InWords("Writing the book of %1", {code}), "CldIUBook", parameters);
}

void RemoveBook(std::int32_t id, const std::string& code, const std::string& expected) {
  SourceValues parameters;
  parameters.Add("ID1", id);
  parameters.Add("Expected", expected);
  (void)CallDatabase(InWords("Removing the book of %1", {code}), "CldIUBook", parameters);
}

}  // namespace ferrowind::planning
