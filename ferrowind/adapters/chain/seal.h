#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

namespace ferrowind::chain {

/// What is kept elsewhere to prove that a history is still what it was at a moment: the number of its newest
/// entry then, and a digest of the newest entry of each chain and of what was there before the first.
struct Seal {
  std::int64_t entry = 0;
  /// 32 letters and digits, 160 bits.
  std::string digest;

  /// The number, the digest and a check group of four, "4211-7K3M-...", short enough to be written down.
  [[nodiscard]] std::string Text() const;
  /// Reads such a text, in letters of any case, with blanks and dashes anywhere behind the number, and with
  /// O, I and L for the digits that they look like. One that was miswritten is a `platform::Failure`.
  [[nodiscard]] static Seal Of(std::string_view text);

  friend bool operator==(const Seal&, const Seal&) = default;
};

/// A seal and what it is of.
struct SealedHistory {
  Seal seal;
  std::int64_t entries = 0;
  /// The moment of the newest entry; empty when there is none.
  std::string newest;
  /// The moment from which on entries were chained as they came; empty when they always were.
  std::string since;
};

}  // namespace ferrowind::chain
