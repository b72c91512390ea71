#pragma once

#include <gtest/gtest.h>

#include "tests/contract/database/database_under_test.h"

namespace ferrowind::contract {

/// What books, plans and reviews do on every engine. An engine's test program compiles planning_contract.cpp
/// and instantiates this suite with its own kind of database.
class PlanningContract : public ::testing::TestWithParam<DatabaseKind<CalendarDatabaseUnderTest>> {};

}  // namespace ferrowind::contract
