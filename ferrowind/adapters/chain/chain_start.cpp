#include "ferrowind/adapters/chain/chain_start.h"

#include <utility>

#include "ferrowind/adapters/chain/history_entry.h"
#include "ferrowind/adapters/chain/sha256.h"
#include "ferrowind/adapters/content/content_table.h"

namespace ferrowind::chain {

void StartContent::Add(const RowKey& row, std::string text) {
  // A calendar's days are there with the calendar.
  if (row[0] == kDayTable && text == kOrdinaryDay) return;
  rows_.insert_or_assign(row, std::move(text));
}

std::map<Part, std::string> StartContent::Digests() const {
  std::map<Part, std::string> parts;
  for (const auto& [row, text] : rows_) {
    std::string& part = parts[PartOf(row)];
    for (const std::int64_t number : row) AppendField(number, part);
    AppendField(text, part);
  }
  for (auto& [part, text] : parts) text = Sha256Text(text);
  return parts;
}

void WriteChainStart(content::Target& database, std::int64_t last_entry, const platform::Value& moment) {
  StartContent content;
  ForEachRow(database, [&](const RowKey& row, std::string text) { content.Add(row, std::move(text)); });
  const auto digests = content.Digests();
  const auto writer =
      database.Writer(content::TableNamed("CldChainStart"), static_cast<std::int64_t>(digests.size()));
  for (const auto& [part, digest] : digests) {
    writer->Add({part.id1, part.year1, last_entry, moment, digest});
  }
  writer->Finish();
}

}  // namespace ferrowind::chain
