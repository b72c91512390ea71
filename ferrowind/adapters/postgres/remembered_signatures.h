#pragma once

#include <chrono>
#include <map>
#include <string>

#include "ferrowind/adapters/postgres_calls/procedure_signature.h"

namespace ferrowind::postgres {

/// What a server has said of procedures a moment ago, for calls that follow each other without a pause.
class RememberedSignatures {
 public:
  void Remember(const std::string& asked_name, const ProcedureSignature& signature);
  /// Null when it was not described, or longer ago than a moment. Valid until the next `Remember`.
  [[nodiscard]] const ProcedureSignature* Find(const std::string& asked_name) const;

 private:
  using Clock = std::chrono::steady_clock;
  struct Entry {
    ProcedureSignature signature;
    Clock::time_point described;
  };

  std::map<std::string, Entry> entries_;
};

}  // namespace ferrowind::postgres
