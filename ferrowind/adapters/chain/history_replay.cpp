#include "ferrowind/adapters/chain/history_replay.h"

#include <algorithm>
#include <charconv>
#include <iterator>

#include "ferrowind/adapters/chain/recorded_table.h"
#include "ferrowind/platform/values/conversion.h"

namespace ferrowind::chain {
namespace {

using content::Row;

std::optional<std::string> TextIn(const platform::Value& value) {
  if (value.IsEmpty()) return std::nullopt;
  return platform::ToText(value);
}

/// A row as messages show it: of one that nobody would read to its end the beginning, in whole characters.
std::string Shown(const std::optional<std::string>& text) {
  constexpr std::size_t kMostBytes = 500;
  if (!text) return "nothing";
  if (text->size() <= kMostBytes) return *text;
  std::size_t end = kMostBytes;
  const auto is_inside_character = [&] { return (static_cast<unsigned char>((*text)[end]) & 0xC0) == 0x80; };
  while (end > 0 && is_inside_character()) --end;
  return text->substr(0, end) + "...";
}

/// The row that `row` of CldHistoryRow tells of; nothing when its table is not known.
std::optional<RowKey> KeyIn(const Row& row) {
  const auto name = platform::ToTextOrEmpty(row[row_column::kTableName]);
  const auto& tables = RecordedTables();
  const auto found =
      std::find_if(tables.begin(), tables.end(), [&](const auto& table) { return table.name == name; });
  if (found == tables.end()) return std::nullopt;
  RowKey key{found->number};
  for (std::size_t i = 0; i < found->key.size(); ++i) {
    key[i + 1] = NumberIn(row[static_cast<std::size_t>(row_column::kID1) + found->key[i]]);
  }
  return key;
}

/// Where the JSON object at the beginning of `text` ends; the text's size when it does not.
std::size_t EndOfObject(std::string_view text) {
  int depth = 0;
  bool is_in_text = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char character = text[i];
    if (is_in_text) {
      if (character == '\\') ++i;
      is_in_text = character != '"';
    } else if (character == '"') {
      is_in_text = true;
    } else if (character == '{') {
      ++depth;
    } else if (character == '}' && --depth == 0) {
      return i + 1;
    }
  }
  return text.size();
}

}  // namespace

std::optional<std::vector<std::pair<std::int64_t, std::string>>> DaysIn(std::string_view text) {
  std::vector<std::pair<std::int64_t, std::string>> days;
  if (text == "{}") return days;
  while (text.starts_with(days.empty() ? "{\"" : ", \"")) {
    text.remove_prefix(days.empty() ? 2 : 3);
    std::int64_t day = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), day);
    if (error != std::errc()) return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    constexpr std::string_view kBetween = "\" : ";
    if (!text.starts_with(kBetween)) return std::nullopt;
    text.remove_prefix(kBetween.size());
    const std::size_t size = EndOfObject(text);
    days.emplace_back(day, text.substr(0, size));
    text.remove_prefix(size);
  }
  if (text != "}") return std::nullopt;
  return days;
}

void HistoryReplay::Apply(const HistoryEntry& entry) {
  if (entry.rows.empty()) return;
  names_.push_back(NameOf(entry.entry));
  for (const Row& row : entry.rows) ApplyRow(row);
}

void HistoryReplay::ApplyRow(const Row& row) {
  const auto key = KeyIn(row);
  if (!key) {
    problems_.Add("The " + names_.back() + " names a table that no call changes: " +
                  platform::ToTextOrEmpty(row[row_column::kTableName]));
    return;
  }
  const Text old_row = TextIn(row[row_column::kOldRow]);
  Text new_row = TextIn(row[row_column::kNewRow]);
  const auto known = Known(*key);
  if (!known) {
    if (old_row) start_.Add(*key, *old_row);
  } else if (*known != old_row) {
    problems_.Add(NameOf(*key) + " was " + Shown(old_row) + " when the " + names_.back() +
                  " changed it, but should have been " + Shown(*known));
  }
  if ((*key)[0] == kCalendarTable) {
    ReplaceCalendar(*key, new_row);
    if (new_row) new_row = "{}";
  }
  rows_.insert_or_assign(*key, State{std::move(new_row), names_.size() - 1});
}

void HistoryReplay::ReplaceCalendar(const RowKey& calendar, const Text& new_row) {
  calendars_.insert(PartOf(calendar));
  const RowKey before_first = {kDayTable, calendar[1], calendar[2], 0};
  const RowKey behind_last = {kDayTable, calendar[1], calendar[2] + 1, 0};
  rows_.erase(rows_.lower_bound(before_first), rows_.lower_bound(behind_last));
  if (!new_row) return;
  const auto days = DaysIn(*new_row);
  if (!days) {
    problems_.Add("The " + names_.back() + " does not tell the days of the calendar that it made");
    return;
  }
  for (const auto& [day, text] : *days) {
    rows_.insert_or_assign({kDayTable, calendar[1], calendar[2], day}, State{text, names_.size() - 1});
  }
}

std::optional<HistoryReplay::Text> HistoryReplay::Known(const RowKey& row) const {
  if (const auto found = rows_.find(row); found != rows_.end()) return found->second.text;
  if (row[0] == kDayTable && calendars_.contains(PartOf(row))) return std::string(kOrdinaryDay);
  return std::nullopt;
}

void HistoryReplay::Compare(content::Source& source) {
  auto next = rows_.cbegin();
  const auto add_missing = [&](const auto& is_missing) {
    for (; next != rows_.cend() && is_missing(next->first); ++next) {
      if (next->second.text) AddDifference(next->first, next->second, std::nullopt);
    }
  };
  ForEachRow(source, [&](const RowKey& row, std::string text) {
    add_missing([&](const RowKey& expected) { return expected < row; });
    if (next != rows_.cend() && next->first == row) {
      if (next->second.text != text) AddDifference(row, next->second, text);
      ++next;
      return;
    }
    CompareRow(row, std::move(text));
  });
  add_missing([](const RowKey&) { return true; });
}

/// Of a row that no entry has changed.
void HistoryReplay::CompareRow(const RowKey& row, std::string text) {
  if (row[0] != kDayTable || !calendars_.contains(PartOf(row))) {
    start_.Add(row, std::move(text));
  } else if (text != kOrdinaryDay) {
    problems_.Add(NameOf(row) + " is " + Shown(text) + ", but no entry of the history made it so");
  }
}

void HistoryReplay::AddDifference(const RowKey& row, const State& expected, const Text& found) {
  problems_.Add(NameOf(row) + " is " + Shown(found) + ", but the " + names_[expected.by] + " left " +
                Shown(expected.text));
}

}  // namespace ferrowind::chain
