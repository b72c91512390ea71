#include "ferrowind/planning/book_store.h"

#include <cstddef>
#include <utility>

#include "ferrowind/almanac/book_faults.h"
#include "ferrowind/almanac/expression_error.h"
#include "ferrowind/planning/database_call.h"
#include "ferrowind/planning/in_words.h"
#include "ferrowind/planning/record_text.h"
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
using Records = std::shared_ptr<const RecordSet>;

/// The places of what makes a rule, looked up once for many rows.
struct RuleFields {
  explicit RuleFields(const RecordSet& rules)
      : position(rules.FieldNamed("Position")),
        name(rules.FieldNamed("Name1")),
        kind(rules.FieldNamed("TID1")),
        expression(rules.FieldNamed("Expression")),
        comment(rules.FieldNamed("Comment")),
        moved_name(rules.FieldNamed("MovedName")) {}

  std::size_t position, name, kind, expression, comment, moved_name;
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

std::vector<StoredBook> Load(const std::string& doing, const Value& currency,
                             const almanac::DateTables& tables) {
  SourceValues parameters;
  parameters.Add("ID1", currency);
  const CallAnswer answer = CallDatabase(doing, "CldGetBook", parameters, 2);
  std::vector<StoredBook> books;
  for (const WrittenBook& written : BooksIn(answer.record_sets[0], answer.record_sets[1])) {
    books.push_back(written.Read(tables));
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

std::int32_t WrittenBook::Currency() const {
  return platform::ToInt32(heads_->Cell(heads_->BookmarkAt(head_), heads_->FieldNamed("ID1")));
}

void WrittenBook::AppendText(std::string& text) const {
  AppendRecords(*heads_, head_, head_ + 1, text);
  AppendRecords(*rules_, first_rule_, last_rule_, text);
}

StoredBook WrittenBook::Read(const almanac::DateTables& tables) const {
  const auto head = heads_->BookmarkAt(head_);
  const auto in_head = [&](const char* field) -> const Value& {
    return heads_->Cell(head, heads_->FieldNamed(field));
  };
  StoredBook stored;
  stored.currency = Currency();
  if (heads_->FindField("Fingerprint")) stored.fingerprint = platform::ToTextOrEmpty(in_head("Fingerprint"));
  RuleBook book;
  book.publisher = platform::ToTextOrEmpty(in_head("Publisher"));
  book.document = platform::ToTextOrEmpty(in_head("Document"));
  if (const Value& since = in_head("FromYear"); !since.IsEmpty()) book.since = platform::ToInt32(since);
  const RuleFields fields(*rules_);
  for (std::size_t i = first_rule_; i < last_rule_; ++i) {
    const auto row = rules_->BookmarkAt(i);
    const auto add_fault = [&](const std::string& fault) {
      stored.faults.push_back(InWords("The rule %1, \"%2\": %3",
                                      {platform::ToTextOrEmpty(rules_->Cell(row, fields.position)),
                                       platform::ToTextOrEmpty(rules_->Cell(row, fields.name)), fault}));
    };
    try {
      book.rules.push_back(ReadRule(*rules_, row, fields));
    } catch (const almanac::ExpressionError& error) {
      add_fault(InWords(error.Sentence()));
    } catch (const Failure& failure) {
      add_fault(failure.Description());
    }
  }
  if (!stored.faults.empty()) return stored;
  for (const platform::Phrase& fault : almanac::FaultsOf(book, tables))
    stored.faults.push_back(InWords(fault));
  stored.book = std::move(book);
  return stored;
}

std::vector<WrittenBook> BooksIn(const Records& heads, const Records& rules) {
  const std::size_t currency_of_head = heads->FieldNamed("ID1");
  const std::size_t currency_of_rule = rules->FieldNamed("ID1");
  std::vector<WrittenBook> books;
  std::size_t next = 0;
  for (std::size_t head = 0; head < heads->RowCount(); ++head) {
    const Value& currency = heads->Cell(heads->BookmarkAt(head), currency_of_head);
    const std::size_t first = next;
    while (next < rules->RowCount() && rules->Cell(rules->BookmarkAt(next), currency_of_rule) == currency)
      ++next;
    books.push_back(WrittenBook(heads, rules, head, first, next));
  }
  return books;
}

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
