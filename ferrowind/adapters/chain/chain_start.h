#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "ferrowind/adapters/chain/content_rows.h"
#include "ferrowind/adapters/content/content_source.h"
#include "ferrowind/platform/values/value.h"

namespace ferrowind::chain {

/// The columns of CldChainStart, by their places in a row.
namespace start_column {
enum : std::size_t { kID1, kYear1, kEntryID, kMoment, kDigest, kCount };
}  // namespace start_column

/// Content of the moment when the entries began to be chained.
class StartContent {
 public:
  /// Rows come in any order, each once.
  void Add(const RowKey& row, std::string text);
  /// A digest of each part that there is.
  [[nodiscard]] std::map<Part, std::string> Digests() const;

 private:
  std::map<RowKey, std::string> rows_;
};

/// Writes what `database` holds now as that from which the history is replayed: behind the entry
/// `last_entry`, 0 for none. `moment` is empty for a database that is new.
void WriteChainStart(content::Target& database, std::int64_t last_entry, const platform::Value& moment);

}  // namespace ferrowind::chain
