#include "ferrowind/adapters/chain/chained_entries.h"

#include <cstdint>
#include <map>
#include <string>

#include "ferrowind/adapters/chain/history_entry.h"

namespace ferrowind::chain {

const content::Table& ChainedEntryTable() {
  static const content::Table table = {
      "ChainedEntry", "entries of the history", {"EntryID", "ChainPosition", "Previous", "Hash"}, 1};
  return table;
}

std::vector<content::Row> ChainedEntries(content::Source& source) {
  struct Head {
    std::int64_t position = 0;
    std::string hash;
  };
  std::map<ChainKey, Head> heads;
  std::vector<content::Row> chained;
  auto reader = EntryReader::OfUnchained(source);
  HistoryEntry entry;
  while (reader.Next(entry)) {
    Head& head = heads[ChainOf(entry.entry)];
    entry.entry[entry_column::kChainPosition] = ++head.position;
    entry.entry[entry_column::kPrevious] = head.hash;
    head.hash = HashOf(entry);
    chained.push_back({entry.entry[entry_column::kEntryID], head.position,
                       entry.entry[entry_column::kPrevious], head.hash});
  }
  return chained;
}

}  // namespace ferrowind::chain
