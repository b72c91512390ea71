// What the hash of an entry is over.

#include "ferrowind/adapters/chain/history_entry.h"

#include <cstddef>
#include <cstdint>
#include <string>

#include <gtest/gtest.h>

namespace ferrowind::chain {
namespace {

using platform::Value;

HistoryEntry SomeEntry() {
  return {
      {7, "2026-11-21T19:28:57.647Z", "Zoë", "CldIUMain", 978, 2026, R"({"ID1" : 978})", 0, 1, 3, "abc", {}},
      {{7, 1, "CldDay", 978, 2026, 5, {}, {}, R"({"TID1" : 1})", {}}}};
}

TEST(EntryHash, IsSha256OverTheFieldsWithTheirLengths) {
  // Computed by another program from the description of the form.
  EXPECT_EQ(HashOf(SomeEntry()), "9c022b7ebbf784f0de249d51ceec382ea5e24dd62b10671fb90c0157d2ba2c33");
}

TEST(EntryHash, IsTheSameForWholeNumbersOfAnyWidth) {
  HistoryEntry wide = SomeEntry();
  wide.entry[entry_column::kEntryID] = std::int64_t{7};
  EXPECT_EQ(HashOf(wide), HashOf(SomeEntry()));
}

TEST(EntryHash, DiffersWithEveryFieldButTheHashItself) {
  for (std::size_t column = 0; column < entry_column::kCount; ++column) {
    HistoryEntry other = SomeEntry();
    other.entry[column] = "other";
    EXPECT_EQ(HashOf(other) == HashOf(SomeEntry()), column == entry_column::kHash) << column;
  }
  for (std::size_t column = row_column::kRowNumber; column < row_column::kCount; ++column) {
    HistoryEntry other = SomeEntry();
    other.rows[0][column] = "other";
    EXPECT_NE(HashOf(other), HashOf(SomeEntry())) << column;
  }
}

TEST(EntryHash, KeepsNothingEmptyTextAndTheBordersOfFieldsApart) {
  const auto text_of = [](const Value& first, const Value& second) {
    std::string text;
    AppendField(first, text);
    AppendField(second, text);
    return text;
  };
  EXPECT_NE(text_of({}, ""), text_of("", {}));
  EXPECT_NE(text_of("-", {}), text_of({}, "-"));
  EXPECT_NE(text_of("ab", "c"), text_of("a", "bc"));
  EXPECT_NE(text_of("1:a", ""), text_of("", "1:a"));
}

}  // namespace
}  // namespace ferrowind::chain
