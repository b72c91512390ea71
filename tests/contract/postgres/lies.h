#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "tests/contract/postgres/lying_proxy.h"

namespace ferrowind::contract {

/// One untruth in what a server says.
struct Lie {
  /// What an honest client can make of it.
  enum class Detection {
    /// Nobody can tell it from another truth: another value, name or type of a column.
    kImpossible,
    /// It may do no harm; otherwise the client must fail.
    kFailureOrTruth,
    kFailure,
  };

  /// "message 23 (D): the cell 2 is null".
  std::string name;
  /// The message that is lied about, counted from 0.
  std::size_t at = 0;
  Detection detection = Detection::kFailureOrTruth;
  std::function<Told(const ServerMessage& message)> tell;
  /// The message comes behind the one that follows it.
  bool is_late = false;
};

inline void PrintTo(const Lie& lie, std::ostream* stream) { *stream << lie.name; }

/// Every lie of the kinds that are known here about the messages of a conversation, those to random bytes
/// made from `seed`.
[[nodiscard]] std::vector<Lie> LiesAbout(const std::vector<ServerMessage>& conversation, std::uint32_t seed);

/// `count` of them, chosen by `seed`, a third of them such as must be found out.
[[nodiscard]] std::vector<Lie> Chosen(std::vector<Lie> lies, std::size_t count, std::uint32_t seed);

/// Tells the truth but for `lie`.
[[nodiscard]] Teller TellerOf(const Lie& lie);
/// Tells the truth, and keeps it in `conversation`, which must outlive the proxy.
[[nodiscard]] Teller Recorder(std::vector<ServerMessage>& conversation);

/// What a run of lies is made from: the environment variable FERROWIND_LIES_SEED, or 1.
[[nodiscard]] std::uint32_t SeedOfLies();
/// How many of them are told where `usual` are: FERROWIND_LIES times as many.
[[nodiscard]] std::size_t CountOfLies(std::size_t usual);

}  // namespace ferrowind::contract
