#include "ferrowind/data/pending_failure.h"

#include <gtest/gtest.h>

#include "ferrowind/data/module_state.h"

#include "tests/support/run_in_fresh_thread.h"

namespace ferrowind {
namespace {

using testing::RunInFreshThread;

TEST(SetPendingFailure, KeepsNumberAndDescriptionInTheFirstRecord) {
  RunInFreshThread([] {
    SetPendingFailure(-2147217900, "Syntax error");
    EXPECT_EQ(Module().pending_failure_count, 1);
    EXPECT_EQ(Module().pending_failures[0].number, -2147217900);
    EXPECT_EQ(Module().pending_failures[0].description, "Syntax error");
  });
}

TEST(SetPendingFailure, KeepsNothingForTheNumberZero) {
  RunInFreshThread([] {
    SetPendingFailure(0, "nothing");
    EXPECT_EQ(Module().pending_failure_count, 0);
    EXPECT_EQ(Module().pending_failures[0].description, "");
  });
}

TEST(SetPendingFailure, TheNumberZeroLeavesAnEarlierFailurePending) {
  RunInFreshThread([] {
    SetPendingFailure(5, "first");
    SetPendingFailure(0, "nothing");
    EXPECT_EQ(Module().pending_failure_count, 1);
    EXPECT_EQ(Module().pending_failures[0].number, 5);
  });
}

TEST(SetPendingFailure, ASecondFailureTakesThePlaceOfTheFirst) {
  RunInFreshThread([] {
    SetPendingFailure(5, "first");
    SetPendingFailure(6, "second");
    EXPECT_EQ(Module().pending_failure_count, 1);
    EXPECT_EQ(Module().pending_failures[0].number, 6);
    EXPECT_EQ(Module().pending_failures[0].description, "second");
    EXPECT_EQ(Module().pending_failures[1].number, 0);
  });
}

TEST(SetPendingFailure, TheTableHasRoomForFifteenRecords) {
  RunInFreshThread([] { EXPECT_EQ(Module().pending_failures.size(), 15u); });
}

}  // namespace
}  // namespace ferrowind
