#include "ferrowind/adapters/postgres/remembered_signatures.h"

#include <cstddef>

namespace ferrowind::postgres {
namespace {

/// So short that what is described is as good as what is described now, and that the server which has
/// described it is as good as asked whether it is there.
constexpr std::chrono::seconds kMoment{1};
/// More than the procedures of a database.
constexpr std::size_t kMost = 100;

}  // namespace

void RememberedSignatures::Remember(const std::string& asked_name, const ProcedureSignature& signature) {
  if (entries_.size() >= kMost) entries_.clear();
  entries_[asked_name] = {signature, Clock::now()};
}

const ProcedureSignature* RememberedSignatures::Find(const std::string& asked_name) const {
  const auto found = entries_.find(asked_name);
  if (found == entries_.end() || Clock::now() - found->second.described > kMoment) return nullptr;
  return &found->second.signature;
}

}  // namespace ferrowind::postgres
