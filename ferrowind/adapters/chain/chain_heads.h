#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>

#include "ferrowind/adapters/chain/history_entry.h"
#include "ferrowind/adapters/chain/seal.h"
#include "ferrowind/adapters/content/content_source.h"

namespace ferrowind::chain {

/// The newest entry of each chain.
class ChainHeads {
 public:
  struct Head {
    std::int64_t entry = 0;
    std::int64_t position = 0;
    std::string hash;
  };

  /// What the chain of `entry` ends with before it; all zero and empty when the entry is its first.
  [[nodiscard]] Head Before(const content::Row& entry) const;
  void Add(const content::Row& entry);
  /// The digest of a seal, given the rows of CldChainStart.
  [[nodiscard]] std::string Digest(const std::vector<content::Row>& starts) const;

 private:
  std::map<ChainKey, Head> heads_;
};

/// The rows of CldChainStart.
[[nodiscard]] std::vector<content::Row> ChainStarts(content::Source& source);

/// Seals the entries of `source` up to the number `last`, or all of them.
[[nodiscard]] SealedHistory SealHistory(content::Source& source, std::optional<std::int64_t> last = {});

}  // namespace ferrowind::chain
