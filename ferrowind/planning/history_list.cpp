#include "ferrowind/planning/history_list.h"

#include <algorithm>
#include <utility>

#include "ferrowind/planning/in_words.h"
#include "ferrowind/planning/told_undo.h"

namespace ferrowind::planning {
namespace {

constexpr std::int32_t kPage = 100;
/// So many entries of others are looked through for those that undid one's own.
constexpr std::int32_t kEntriesOfOthers = 300;

}  // namespace

HistoryList::HistoryList()
    : currencies_(CurrencyList::Load()),
      words_(currencies_, [this](std::int32_t id) { return EntryOf(id); }) {}

void HistoryList::Show(const HistoryFilter& filter, bool is_own) {
  const HistoryFilter old_filter = std::exchange(filter_, filter);
  const bool old_is_own = std::exchange(is_own_, is_own);
  try {
    Load(std::nullopt, kPage);
  } catch (...) {
    filter_ = old_filter;
    is_own_ = old_is_own;
    throw;
  }
}

void HistoryList::Reload() {
  constexpr std::size_t kMost = 9'999;
  Load(std::nullopt, std::max(kPage, static_cast<std::int32_t>(std::min(lines_.size(), kMost))));
}

void HistoryList::ShowOlder() {
  if (!lines_.empty()) Load(lines_.back().entry.id, kPage);
}

void HistoryList::Load(std::optional<std::int32_t> before, std::int32_t count) {
  HistoryFilter filter = filter_;
  filter.user.reset();
  UndoState state = before ? state_ : UndoState();
  if (is_own_) {
    const HistoryPage others = LoadHistory(filter, before, kEntriesOfOthers);
    for (const HistoryEntry& entry : others.entries) {
      if (entry.user != others.asker) state.Add(entry);
    }
    filter.user = others.asker;
  }
  HistoryPage page = LoadHistory(filter, before, count);
  for (const HistoryEntry& entry : page.entries) {
    state.Add(entry);
    known_.insert_or_assign(entry.id, entry);
  }
  // An entry may undo one that stands below it, so they are told when all are known.
  std::vector<Line> lines;
  for (HistoryEntry& entry : page.entries) {
    ToldEntry told = words_.Tell(entry);
    std::string calendar = words_.Calendar(entry);
    lines.push_back({std::move(entry), std::move(told), std::move(calendar)});
  }
  if (before) lines.insert(lines.begin(), lines_.begin(), lines_.end());
  lines_ = std::move(lines);
  state_ = std::move(state);
  has_older_ = page.has_older;
}

const HistoryList::Line* HistoryList::Find(std::int32_t entry) const {
  const auto found =
      std::find_if(lines_.begin(), lines_.end(), [&](const Line& line) { return line.entry.id == entry; });
  return found == lines_.end() ? nullptr : &*found;
}

std::optional<UndoStep> HistoryList::StepOf(const Line& line) const {
  if (!line.entry.keeps_rows) return std::nullopt;
  return state_.StepOf(line.entry.id, line.told);
}

std::string HistoryList::Do(const UndoStep& step) const {
  HistoryEntry entry;
  entry.id = step.entry;
  if (auto known = EntryOf(step.entry)) entry = std::move(*known);
  const std::string calendar = words_.Calendar(entry);
  const std::string sentence = words_.Tell(entry).Sentence();
  const UndoOutcome outcome = UndoTold(entry, currencies_,
                                       calendar.empty() ? InWords("Undoing \"%1\"", {sentence})
                                                        : InWords("Undoing in %1: %2", {calendar, sentence}));
  return outcome.kind == UndoOutcome::Kind::kDone ? "" : words_.WhyNotUndone(entry, outcome);
}

std::optional<HistoryEntry> HistoryList::EntryOf(std::int32_t id) const {
  const auto known = known_.find(id);
  if (known != known_.end()) return known->second;
  const auto loaded = LoadEntry(id);
  return known_.emplace(id, loaded ? std::optional(loaded->entry) : std::nullopt).first->second;
}

}  // namespace ferrowind::planning
