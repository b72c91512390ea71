#pragma once

#include <memory>
#include <optional>

#include <gtest/gtest.h>

#include "tests/contract/database/database_under_test.h"
#include "tests/contract/database/procedure_caller.h"

namespace ferrowind::contract {

/// The contract of `platform::Engine`. An engine's test program compiles engine_contract.cpp and
/// procedure_caller.cpp and instantiates this suite with its own kind of database.
class EngineContract : public ::testing::TestWithParam<DatabaseKind<DatabaseUnderTest>> {
 protected:
  void SetUp() override {
    database_ = GetParam().make();
    caller_.emplace(*database_);
  }

  [[nodiscard]] DatabaseUnderTest& database() { return *database_; }
  [[nodiscard]] ProcedureCaller& caller() { return *caller_; }

 private:
  std::unique_ptr<DatabaseUnderTest> database_;
  std::optional<ProcedureCaller> caller_;
};

}  // namespace ferrowind::contract
