#pragma once

#include <memory>
#include <string>

#include "ferrowind/adapters/content/history_filter.h"
#include "ferrowind/platform/values/record_set.h"

#include "tests/contract/database/database_under_test.h"

namespace ferrowind::contract {

/// A calendar database of an engine that keeps a history of what was changed.
class DatabaseWithHistoryUnderTest : public CalendarDatabaseUnderTest {
 public:
  [[nodiscard]] virtual std::shared_ptr<platform::RecordSet> ReadHistory(
      const content::HistoryFilter& filter) = 0;
  /// By whom the calls of `Engine()` are made.
  [[nodiscard]] virtual std::string UserName() = 0;
};

}  // namespace ferrowind::contract
