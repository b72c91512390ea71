// The recording of a failure that fails itself. The allocation functions of this program are replaced by ones
// of which a single allocation can be made to fail.
#include <new>
#include <string>

#include <gtest/gtest.h>

#include "ferrowind/data/module_state.h"
#include "ferrowind/data/pending_failure.h"

#include "tests/support/expect_failure.h"
#include "tests/support/replaced_allocation.h"
#include "tests/support/run_in_fresh_thread.h"

namespace ferrowind {
namespace {

using testing::ExpectFailure;
using testing::RunInFreshThread;

constexpr std::int32_t kTypeMismatch = 13;

thread_local bool next_allocation_fails = false;

void FailOnce(std::size_t /*size*/) {
  if (!next_allocation_fails) return;
  next_allocation_fails = false;
  throw std::bad_alloc();
}

class SetPendingFailureWithoutMemory : public ::testing::Test {
 protected:
  SetPendingFailureWithoutMemory() { testing::before_allocation = FailOnce; }
  ~SetPendingFailureWithoutMemory() override { testing::before_allocation = nullptr; }
};

const std::string& LongDescription() {
  static const std::string text(4096, 'x');
  return text;
}

TEST_F(SetPendingFailureWithoutMemory, FailsWithTypeMismatchAndLeavesTheNumber666AndTheOldDescription) {
  RunInFreshThread([] {
    SetPendingFailure(5, "old text");
    Module().pending_failure_count = 0;
    const std::string& description = LongDescription();
    ExpectFailure(
        [&] {
          next_allocation_fails = true;
          SetPendingFailure(3146, description);
        },
        kTypeMismatch, "Type mismatch");
    EXPECT_FALSE(next_allocation_fails) << "the recording allocated nothing, so that nothing failed";
    EXPECT_EQ(Module().pending_failure_count, 1);
    EXPECT_EQ(Module().pending_failures[0].number, 666);
    EXPECT_EQ(Module().pending_failures[0].description, "old text");
  });
}

TEST_F(SetPendingFailureWithoutMemory, IsFollowedByRecordingsThatSucceed) {
  RunInFreshThread([] {
    // A thread's first look at its state allocates on some systems.
    ASSERT_EQ(Module().pending_failure_count, 0);
    const std::string& description = LongDescription();
    ExpectFailure(
        [&] {
          next_allocation_fails = true;
          SetPendingFailure(3146, description);
        },
        kTypeMismatch);
    SetPendingFailure(3146, description);
    EXPECT_EQ(Module().pending_failure_count, 1);
    EXPECT_EQ(Module().pending_failures[0].number, 3146);
    EXPECT_EQ(Module().pending_failures[0].description, description);
  });
}

}  // namespace
}  // namespace ferrowind
