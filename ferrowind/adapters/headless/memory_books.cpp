#include <algorithm>
#include <optional>
#include <utility>

#include "ferrowind/adapters/headless/memory_database.h"
#include "ferrowind/adapters/headless/memory_json.h"
#include "ferrowind/adapters/headless/memory_lookup.h"
#include "ferrowind/adapters/headless/memory_procedures.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/fingerprint.h"
#include "ferrowind/platform/values/text_limits.h"

namespace ferrowind::headless {
namespace {

using platform::CallOutcome;
using platform::JsonValue;
using platform::ParameterType;
using platform::ReadJson;
using platform::Value;

constexpr std::size_t kMostRules = 10000;

void Add(platform::Fingerprint& fingerprint, const Value& text) {
  if (text.IsEmpty()) return fingerprint.AddNothing();
  fingerprint.Add(platform::ToText(text));
}

std::string FingerprintOf(const MemoryBook& book) {
  platform::Fingerprint fingerprint;
  fingerprint.Add(book.publisher);
  fingerprint.Add(book.document);
  Add(fingerprint, book.from_year);
  for (const MemoryRecurrence& rule : book.rules) {
    fingerprint.Add(rule.name);
    fingerprint.Add(std::to_string(rule.type));
    fingerprint.Add(rule.expression);
    Add(fingerprint, rule.comment);
    Add(fingerprint, rule.moved_name);
  }
  return fingerprint.Digits();
}

CallOutcome GetBook(MemoryTables& tables, const std::vector<Value>& inputs) {
  const Value& wanted = inputs[0];
  if (!wanted.IsEmpty() && !IsMoney(tables, wanted)) return {kUnknownCurrency, {}};
  Rows books;
  for (const auto& [currency, book] : tables.books) {
    if (!wanted.IsEmpty() && wanted != Value(currency)) continue;
    books.push_back({currency, book.publisher, book.document, FingerprintOf(book), book.from_year});
  }
  return {kDone,
          {Records({"ID1", "Publisher", "Document", "Fingerprint", "FromYear"}, std::move(books)),
           RecordsOfRecurrences(tables, wanted)}};
}

/// The rule that the members of a JSON object say; nothing when they say something else.
std::optional<MemoryRecurrence> ReadRule(const JsonValue& object) {
  const JsonMembers members(object, {"Name1", "TID1", "Expression", "Comment", "MovedName"});
  const auto type = members.RuleType("TID1");
  if (!members.AreWellFormed() || !type) return std::nullopt;
  const auto name = members.TextOrNothing("Name1");
  const auto expression = members.TextOrNothing("Expression");
  const auto comment = members.TextOrNothing("Comment");
  const auto moved_name = members.TextOrNothing("MovedName");
  if (!name || !expression || !comment || !moved_name) return std::nullopt;
  if (IsBlank(*name) || IsBlank(*expression)) return std::nullopt;
  if (IsLongerThan(platform::kLongestName, *name) || IsLongerThan(platform::kLongestName, *moved_name) ||
      IsLongerThan(platform::kLongestComment, *expression) ||
      IsLongerThan(platform::kLongestComment, *comment)) {
    return std::nullopt;
  }
  return MemoryRecurrence{platform::ToText(*name), *type, platform::ToText(*expression), *comment,
                          *moved_name};
}

std::optional<std::vector<MemoryRecurrence>> ReadRules(const std::string& text) {
  if (text.size() > platform::kLongestList) return std::nullopt;
  const auto json = ReadJson(text);
  if (!json || json->kind != JsonValue::Kind::kList || json->items.size() > kMostRules) return std::nullopt;
  std::vector<MemoryRecurrence> rules;
  for (const JsonValue& item : json->items) {
    auto rule = ReadRule(item);
    if (!rule) return std::nullopt;
    rules.push_back(std::move(*rule));
  }
  return rules;
}

CallOutcome InsertOrUpdateBook(MemoryTables& tables, const std::vector<Value>& inputs) {
  const Value& currency = inputs[0];
  const Value& expected = inputs[1];
  const auto texts = {inputs[2], inputs[3], inputs[4]};
  const auto missing =
      std::count_if(texts.begin(), texts.end(), [](const Value& text) { return text.IsEmpty(); });
  if (currency.IsEmpty() || expected.IsEmpty() || missing == 1 || missing == 2) return {kWrongValue, {}};
  const Value& from_year = inputs[5];
  if (IsLongerThan(platform::kLongestName, inputs[2]) || IsLongerThan(platform::kLongestComment, inputs[3]))
    return {kWrongValue, {}};
  if (!from_year.IsEmpty() && (missing != 0 || !IsYear(from_year))) return {kWrongValue, {}};
  std::optional<std::vector<MemoryRecurrence>> rules;
  if (missing == 0) {
    rules = ReadRules(platform::ToText(inputs[4]));
    if (!rules) return {kWrongValue, {}};
  }
  if (!IsMoney(tables, currency)) return {kUnknownCurrency, {}};
  const std::int32_t id = platform::ToInt32(currency);
  const auto book = tables.books.find(id);
  const std::string fingerprint = book == tables.books.end() ? "" : FingerprintOf(book->second);
  if (platform::ToText(expected) != fingerprint) return {kAnotherContent, {}};
  tables.books.erase(id);
  if (rules) {
    tables.books[id] = {platform::ToText(inputs[2]), platform::ToText(inputs[3]), from_year,
                        std::move(*rules)};
  }
  return {kDone, {}};
}

}  // namespace

void AddBookProcedures(MemoryDatabase& database) {
  constexpr auto kText = ParameterType::kText;
  database.AddProcedure("CldGetBook", {{"@ID1", ParameterType::kInt32}}, GetBook);
  database.AddProcedure("CldIUBook",
                        {{"@ID1", ParameterType::kInt32},
                         {"@Expected", kText},
                         {"@Publisher", kText},
                         {"@Document", kText},
                         {"@Rules", kText},
                         {"@FromYear", ParameterType::kInt32}},
                        InsertOrUpdateBook, MemoryProcedure::Kind::kRecorded);
}

}  // namespace ferrowind::headless
