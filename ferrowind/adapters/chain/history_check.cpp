#include "ferrowind/adapters/chain/history_check.h"

#include <cstdint>

#include "ferrowind/adapters/chain/chain_heads.h"
#include "ferrowind/adapters/chain/chain_start.h"
#include "ferrowind/adapters/chain/history_entry.h"
#include "ferrowind/adapters/chain/history_replay.h"
#include "ferrowind/adapters/chain/problem_list.h"
#include "ferrowind/adapters/chain/recorded_since.h"
#include "ferrowind/platform/values/conversion.h"

namespace ferrowind::chain {
namespace {

using std::to_string;

std::string ChainName(const ChainKey& chain) {
  if (chain.year1 != 0) return "the calendar " + to_string(chain.id1) + " of " + to_string(chain.year1);
  if (chain.id1 != 0) return "the rule book of " + to_string(chain.id1);
  return "rules, currencies and conventions";
}

class HistoryCheck {
 public:
  HistoryCheck(content::Source& source, const std::optional<Seal>& seal)
      : source_(source),
        seal_(seal),
        starts_(ChainStarts(source)),
        since_(source, starts_, problems_),
        replay_(problems_) {}

  std::vector<std::string> Run() {
    LookAtEntries();
    replay_.Compare(source_);
    CompareStart();
    if (seal_) CompareSeal();
    return problems_.Take();
  }

 private:
  void LookAtEntries() {
    EntryReader reader(source_);
    HistoryEntry entry;
    while (reader.Next(entry)) LookAt(entry);
  }

  void LookAt(const HistoryEntry& entry) {
    newest_ = NumberIn(entry.entry[entry_column::kEntryID]);
    LookAtLink(entry.entry);
    if (platform::ToTextOrEmpty(entry.entry[entry_column::kHash]) != HashOf(entry)) {
      problems_.Add("The " + NameOf(entry.entry) +
                    " or what it keeps of the rows that it changed is not as it was recorded");
    }
    heads_.Add(entry.entry);
    if (seal_ && newest_ <= seal_->entry) {
      sealed_heads_.Add(entry.entry);
      last_sealed_ = newest_;
    }
    since_.LookAt(entry);
    if (newest_ > LastBeforeStart()) replay_.Apply(entry);
  }

  void LookAtLink(const content::Row& entry) {
    const ChainHeads::Head before = heads_.Before(entry);
    const std::int64_t position = NumberIn(entry[entry_column::kChainPosition]);
    const std::string behind =
        before.entry == 0 ? "is the first" : "comes behind the entry " + to_string(before.entry);
    if (position > before.position + 1) {
      problems_.Add("Entries of " + ChainName(ChainOf(entry)) +
                    " are missing from the history: " + to_string(position - before.position - 1) +
                    " before the " + NameOf(entry) + ", which now " + behind);
    } else if (position <= before.position) {
      problems_.Add("The " + NameOf(entry) + " is not at its place: it was number " + to_string(position) +
                    " of " + ChainName(ChainOf(entry)) + ", and " + behind);
    } else if (platform::ToTextOrEmpty(entry[entry_column::kPrevious]) != before.hash) {
      problems_.Add("The " + NameOf(entry) + " does not follow what is before it: it " + behind + " of " +
                    ChainName(ChainOf(entry)) + ", but was recorded behind another");
    }
  }

  [[nodiscard]] std::int64_t LastBeforeStart() const {
    return starts_.empty() ? 0 : NumberIn(starts_.front()[start_column::kEntryID]);
  }

  void CompareStart() {
    auto found = replay_.Start().Digests();
    for (const content::Row& start : starts_) {
      const Part part{NumberIn(start[start_column::kID1]), NumberIn(start[start_column::kYear1])};
      const auto digest = found.extract(part);
      if (digest.empty()) {
        problems_.Add(NameOf(part) + " was there " + WhenChainsBegan() +
                      " and is gone without an entry of the history");
      } else if (digest.mapped() != platform::ToTextOrEmpty(start[start_column::kDigest])) {
        problems_.Add(
            NameOf(part) +
            " was changed without an entry of the history: what no entry has changed is not as it was " +
            WhenChainsBegan());
      }
    }
    for (const auto& [part, digest] : found) {
      problems_.Add(NameOf(part) + " is there without an entry of the history that made it");
    }
  }

  [[nodiscard]] std::string WhenChainsBegan() const {
    const std::string moment =
        starts_.empty() ? "" : platform::ToTextOrEmpty(starts_.front()[start_column::kMoment]);
    return moment.empty() ? "when the database was created" : "at the upgrade of " + moment;
  }

  void CompareSeal() {
    const std::string sealed =
        "the seal, which was taken when the newest entry was number " + to_string(seal_->entry);
    if (newest_ < seal_->entry) {
      problems_.Add("The newest entries of the history are missing: the last one is number " +
                    to_string(newest_) + ", and " + sealed + ", proves that there were more");
    } else if (Seal{last_sealed_, sealed_heads_.Digest(starts_)} != *seal_) {
      problems_.Add("The history up to the entry " + to_string(seal_->entry) + " does not fit " + sealed +
                    ": entries, or what was there before them, were changed or removed since, or the seal is "
                    "another database's");
    }
  }

  content::Source& source_;
  const std::optional<Seal>& seal_;
  std::vector<content::Row> starts_;
  ProblemList problems_;
  RecordedSince since_;
  HistoryReplay replay_;
  ChainHeads heads_;
  std::int64_t newest_ = 0;
  /// Of the entries up to the seal's.
  ChainHeads sealed_heads_;
  std::int64_t last_sealed_ = 0;
};

}  // namespace

std::vector<std::string> HistoryProblems(content::Source& source, const std::optional<Seal>& seal) {
  return HistoryCheck(source, seal).Run();
}

}  // namespace ferrowind::chain
