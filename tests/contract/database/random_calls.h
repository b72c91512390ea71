#pragma once

#include <cstdint>
#include <random>
#include <string>

#include "ferrowind/platform/database/engine.h"

#include "tests/contract/database/procedure_caller.h"

namespace ferrowind::contract {

/// Makes random calls that change the calendars of two currencies and two years, rules, books and currencies.
/// Some are refused.
class RandomCalls {
 public:
  /// `caller` must outlive this. The same seed makes the same calls of the same content.
  RandomCalls(ProcedureCaller& caller, std::uint32_t seed) : caller_(caller), random_(seed) {}

  void Make();

  int UpTo(int most) { return std::uniform_int_distribution<int>(0, most)(random_); }
  /// Of those that the calls are for.
  int Currency();
  int Year() { return 2027 + UpTo(1); }

 private:
  int Entries();
  std::string Name() { return "Rule " + std::to_string(UpTo(11)); }
  platform::Value Comment();
  platform::Value Fingerprint(const std::string& procedure, const Arguments& arguments);

  void StoreRule();
  void AssignDays();
  void ApplyPlan();
  void StoreBook();
  void ChangeCurrency();
  void ChangeConvention();
  platform::CallOutcome Call(const std::string& procedure, const Arguments& arguments);

  ProcedureCaller& caller_;
  std::mt19937 random_;
};

}  // namespace ferrowind::contract
