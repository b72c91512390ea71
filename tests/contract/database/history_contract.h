#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "tests/contract/database/database_with_history.h"
#include "tests/contract/database/procedures_contract.h"

namespace ferrowind::contract {

/// What the history holds of the calls. An engine's test program compiles the file of
/// FERROWIND_HISTORY_CONTRACT and instantiates this suite with its own kind of database.
class HistoryContract : public ::testing::TestWithParam<DatabaseKind<DatabaseWithHistoryUnderTest>> {
 protected:
  void SetUp() override {
    database_ = GetParam().make();
    caller_.emplace(*database_);
  }
  void TearDown() override { EXPECT_TRUE(database_->IsSound()); }

  [[nodiscard]] DatabaseWithHistoryUnderTest& database() { return *database_; }
  [[nodiscard]] ProcedureCaller& caller() { return *caller_; }

  /// The field `field` of every entry, the oldest first, as texts.
  std::vector<std::string> History(const std::string& field);

 private:
  std::unique_ptr<DatabaseWithHistoryUnderTest> database_;
  std::optional<ProcedureCaller> caller_;
};

}  // namespace ferrowind::contract
