#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

#include "ferrowind/adapters/chain/recorded_table.h"
#include "ferrowind/adapters/content/content_source.h"

namespace ferrowind::chain {

/// A row of the content: the number of its table, and the numbers of its key.
using RowKey = std::array<std::int64_t, 4>;

/// What belongs together: a calendar with its days (ID1 and Year1), a rule book with its rules (ID1), or a
/// whole table (neither; then Year1 is its number).
struct Part {
  std::int64_t id1 = 0;
  std::int64_t year1 = 0;

  friend auto operator<=>(const Part&, const Part&) = default;
};

[[nodiscard]] Part PartOf(const RowKey& row);

/// For people, at the beginning of a sentence.
[[nodiscard]] std::string NameOf(const RowKey& row);
[[nodiscard]] std::string NameOf(const Part& part);

/// Calls `visit` with every row of the content and its text, ordered by key. The history is not among them,
/// nor is the setting, which has no procedure.
void ForEachRow(content::Source& source,
                const std::function<void(const RowKey& row, std::string text)>& visit);

}  // namespace ferrowind::chain
