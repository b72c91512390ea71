#include "ferrowind/adapters/grid_content/grid_layout.h"

#include <charconv>
#include <set>
#include <system_error>
#include <utility>

#include "ferrowind/platform/toolkit/grid_keys.h"
#include "ferrowind/platform/values/case_fold.h"
#include "ferrowind/platform/values/json_text.h"
#include "ferrowind/platform/values/json_value.h"

namespace ferrowind::grid_content {
namespace {

using platform::JsonText;
using platform::JsonValue;
using Kind = platform::JsonValue::Kind;

constexpr const char* kVersion = "1";
constexpr const char* kVersionName = "gridLayout";
constexpr int kLeastWidth = 1;
constexpr int kGreatestWidth = 10000;

/// Nothing for another kind of value, and for a number that is no whole one between the two.
std::optional<std::int32_t> NumberBetween(std::int32_t least, std::int32_t greatest, const JsonValue* value) {
  if (value == nullptr || value->kind != Kind::kNumber) return std::nullopt;
  const char* const end = value->text.data() + value->text.size();
  std::int32_t number = 0;
  const auto read = std::from_chars(value->text.data(), end, number);
  if (read.ec != std::errc() || read.ptr != end || number < least || number > greatest) return std::nullopt;
  return number;
}

bool IsOfKind(Kind kind, const JsonValue* value) { return value != nullptr && value->kind == kind; }

std::optional<GridLayout::Key> DecodedKey(const JsonValue& entry) {
  const JsonValue* const column = entry.Find("column");
  const auto order = NumberBetween(platform::kSortDescending, platform::kSortAscending, entry.Find("order"));
  if (!IsOfKind(Kind::kText, column) || !order) return std::nullopt;
  return GridLayout::Key{column->text, *order};
}

std::optional<GridLayout::Column> DecodedColumn(const JsonValue& entry) {
  const JsonValue* const key = entry.Find("key");
  const JsonValue* const visible = entry.Find("visible");
  const auto width = NumberBetween(kLeastWidth, kGreatestWidth, entry.Find("width"));
  if (!IsOfKind(Kind::kText, key) || !IsOfKind(Kind::kTruth, visible) || !width) return std::nullopt;
  return GridLayout::Column{key->text, *width, visible->text == "true"};
}

const std::string& NameOf(const GridLayout::Key& key) { return key.column_key; }
const std::string& NameOf(const GridLayout::Column& column) { return column.key; }

/// Nothing when an entry is none, or names a column that another one has named.
template <typename Entry>
std::optional<std::vector<Entry>> DecodedList(const JsonValue* list,
                                              std::optional<Entry> (*decoded)(const JsonValue& entry)) {
  if (!IsOfKind(Kind::kList, list)) return std::nullopt;
  std::vector<Entry> entries;
  std::set<std::string> seen;
  for (const JsonValue& item : list->items) {
    auto entry = decoded(item);
    if (!entry || !seen.insert(platform::FoldCase(NameOf(*entry))).second) return std::nullopt;
    entries.push_back(*std::move(entry));
  }
  return entries;
}

std::string Encoded(const GridLayout::Key& key) {
  return "{\"column\":" + JsonText(key.column_key) + ",\"order\":" + std::to_string(key.sort_order) + "}";
}

std::string Encoded(const GridLayout::Column& column) {
  return "{\"key\":" + JsonText(column.key) + ",\"visible\":" + (column.is_visible ? "true" : "false") +
         ",\"width\":" + std::to_string(column.width) + "}";
}

template <typename Entry>
std::string EncodedList(const std::vector<Entry>& entries) {
  std::string text = "[";
  for (const Entry& entry : entries) {
    if (&entry != entries.data()) text += ',';
    text += Encoded(entry);
  }
  return text + "]";
}

}  // namespace

std::string EncodeLayout(const GridLayout& layout) {
  return "{\"columns\":" + EncodedList(layout.columns) + ",\"" + kVersionName + "\":" + kVersion +
         ",\"groups\":" + EncodedList(layout.group_keys) + ",\"sort\":" + EncodedList(layout.sort_keys) + "}";
}

std::optional<GridLayout> DecodeLayout(const std::string& text) {
  const auto object = platform::ReadJson(text);
  if (!object) return std::nullopt;
  const JsonValue* const version = object->Find(kVersionName);
  if (!IsOfKind(Kind::kNumber, version) || version->text != kVersion) return std::nullopt;
  auto columns = DecodedList(object->Find("columns"), &DecodedColumn);
  auto sort_keys = DecodedList(object->Find("sort"), &DecodedKey);
  auto group_keys = DecodedList(object->Find("groups"), &DecodedKey);
  if (!columns || !sort_keys || !group_keys) return std::nullopt;
  return GridLayout{*std::move(columns), *std::move(sort_keys), *std::move(group_keys)};
}

std::vector<GridLayout::Key> KeysOf(const StoredColumns& columns, const StoredKeyList& keys) {
  std::vector<GridLayout::Key> saved;
  for (std::int32_t position = 1; position <= keys.Count(); ++position) {
    const auto key = keys.Item(position);
    saved.push_back({columns[key->ColIndex].Key(), key->SortOrder});
  }
  return saved;
}

void RestoreKeys(const StoredColumns& columns, const std::vector<GridLayout::Key>& saved,
                 StoredKeyList& keys) {
  keys.Clear();
  for (const GridLayout::Key& key : saved) {
    if (const StoredColumn* const column = columns.Find(key.column_key))
      keys.Add(column->Index(), key.sort_order, 0);
  }
}

}  // namespace ferrowind::grid_content
