#include "tests/contract/toolkit/toolkit_contract.h"

namespace ferrowind::contract {
namespace {

using platform::Subscription;
using testing::ElementsAre;
using testing::IsEmpty;
namespace failure_number = platform::failure_number;

/// Long enough for a machine that has much else to do.
constexpr std::int32_t kLong = 300;

class TimerContract : public ToolkitContract {};

TEST_F(TimerContract, CallsOnceWhenItsTimeHasCome) {
  const Subscription timer = toolkit.After(20, Note("call"));
  EXPECT_THAT(notes, IsEmpty());
  under_test->Wait(kLong);
  under_test->Wait(kLong);
  EXPECT_THAT(notes, ElementsAre("call"));
}

TEST_F(TimerContract, CallsLaterEvenWithoutAWait) {
  const Subscription timer = toolkit.After(0, Note("call"));
  EXPECT_THAT(notes, IsEmpty());
  under_test->Wait(kLong);
  EXPECT_THAT(notes, ElementsAre("call"));
}

TEST_F(TimerContract, CallsInTheOrderOfTheirTimes) {
  const Subscription late = toolkit.After(60, Note("late"));
  const Subscription early = toolkit.After(5, Note("early"));
  under_test->Wait(kLong);
  EXPECT_THAT(notes, ElementsAre("early", "late"));
}

TEST_F(TimerContract, IsCalledOffByDroppingItsSubscription) {
  Subscription timer = toolkit.After(20, Note("call"));
  timer.Reset();
  under_test->Wait(kLong);
  EXPECT_THAT(notes, IsEmpty());
}

TEST_F(TimerContract, BeginsAnewWhenItIsAskedForAgain) {
  Subscription timer = toolkit.After(20, Note("first"));
  timer = toolkit.After(20, Note("second"));
  under_test->Wait(kLong);
  EXPECT_THAT(notes, ElementsAre("second"));
}

TEST_F(TimerContract, MayBeDroppedAndAskedForInItsHandler) {
  Subscription timer;
  const std::function<void()> again = [&] {
    notes.push_back("call");
    if (notes.size() < 3) timer = toolkit.After(5, again);
  };
  timer = toolkit.After(5, again);
  under_test->Wait(kLong);
  EXPECT_THAT(notes, ElementsAre("call", "call", "call"));
}

TEST_F(TimerContract, RefusesANegativeTime) {
  ExpectFailure(failure_number::kInvalidArgument, "",
                [&] { static_cast<void>(toolkit.After(-1, Note("call"))); });
}

}  // namespace
}  // namespace ferrowind::contract
