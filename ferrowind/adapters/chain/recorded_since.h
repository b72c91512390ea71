#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/adapters/chain/history_entry.h"
#include "ferrowind/adapters/chain/problem_list.h"
#include "ferrowind/adapters/content/content_source.h"

namespace ferrowind::chain {

/// From where on the history tells what calls replaced, as CldHistoryStart says it, held against the entries
/// themselves: a beginning that is not true would hide what was there before it.
class RecordedSince {
 public:
  /// `starts` are the rows of CldChainStart. `problems` must outlive the object.
  RecordedSince(content::Source& source, const std::vector<content::Row>& starts, ProblemList& problems);

  /// Entries come in the order of their numbers.
  void LookAt(const HistoryEntry& entry);

 private:
  struct Beginning {
    /// The last entry before.
    std::int64_t entry = 0;
    std::string moment;
  };

  void CompareWithChains(const std::vector<content::Row>& starts);

  ProblemList& problems_;
  std::optional<Beginning> said_;
  /// Of the entries that contradict it the first one tells enough.
  bool is_contradicted_ = false;
};

}  // namespace ferrowind::chain
