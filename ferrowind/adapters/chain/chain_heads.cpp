#include "ferrowind/adapters/chain/chain_heads.h"

#include <utility>

#include "ferrowind/adapters/chain/chain_start.h"
#include "ferrowind/adapters/chain/letters_of_bits.h"
#include "ferrowind/adapters/chain/sha256.h"
#include "ferrowind/adapters/content/content_table.h"
#include "ferrowind/platform/values/conversion.h"

namespace ferrowind::chain {

ChainHeads::Head ChainHeads::Before(const content::Row& entry) const {
  const auto found = heads_.find(ChainOf(entry));
  return found == heads_.end() ? Head() : found->second;
}

void ChainHeads::Add(const content::Row& entry) {
  heads_[ChainOf(entry)] = {NumberIn(entry[entry_column::kEntryID]),
                            NumberIn(entry[entry_column::kChainPosition]),
                            platform::ToTextOrEmpty(entry[entry_column::kHash])};
}

std::string ChainHeads::Digest(const std::vector<content::Row>& starts) const {
  constexpr std::size_t kLetters = 32;
  std::string text;
  AppendField(static_cast<std::int64_t>(starts.size()), text);
  for (const content::Row& start : starts) {
    for (const platform::Value& value : start) AppendField(value, text);
  }
  for (const auto& [chain, head] : heads_) {
    for (const std::int64_t number : {chain.id1, chain.year1, head.entry, head.position}) {
      AppendField(number, text);
    }
    AppendField(head.hash, text);
  }
  return LettersOf(Sha256(text), kLetters);
}

std::vector<content::Row> ChainStarts(content::Source& source) {
  const auto reader = source.Rows(content::TableNamed("CldChainStart"), content::RowOrder::kByKey);
  std::vector<content::Row> starts;
  content::Row row;
  while (reader->Next(row)) starts.push_back(row);
  return starts;
}

SealedHistory SealHistory(content::Source& source, std::optional<std::int64_t> last) {
  const auto starts = ChainStarts(source);
  SealedHistory sealed;
  ChainHeads heads;
  const auto entries = source.Rows(content::TableNamed("CldHistory"), content::RowOrder::kByKey);
  content::Row entry;
  while (entries->Next(entry)) {
    const std::int64_t number = NumberIn(entry[entry_column::kEntryID]);
    if (last && number > *last) continue;
    heads.Add(entry);
    ++sealed.entries;
    sealed.seal.entry = number;
    sealed.newest = platform::ToTextOrEmpty(entry[entry_column::kMoment]);
  }
  sealed.seal.digest = heads.Digest(starts);
  if (!starts.empty()) sealed.since = platform::ToTextOrEmpty(starts.front()[start_column::kMoment]);
  return sealed;
}

}  // namespace ferrowind::chain
