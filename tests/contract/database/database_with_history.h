#pragma once

#include <string>

#include "tests/contract/database/database_under_test.h"

namespace ferrowind::contract {

/// A calendar database of an engine that keeps a history of what was changed.
class DatabaseWithHistoryUnderTest : public CalendarDatabaseUnderTest {
 public:
  /// By whom the calls of `Engine()` are made.
  [[nodiscard]] virtual std::string UserName() = 0;
};

}  // namespace ferrowind::contract
