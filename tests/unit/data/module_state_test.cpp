#include "ferrowind/data/module_state.h"

#include <memory>

#include <gtest/gtest.h>

#include "tests/support/component_world.h"
#include "tests/support/expect_failure.h"
#include "tests/support/run_in_fresh_thread.h"

namespace ferrowind {
namespace {

using platform::Failure;
using testing::ComponentWorld;
using testing::ExpectFailure;
using testing::RunInFreshThread;

constexpr std::int32_t kObjectNotSet = 91;
constexpr std::int32_t kCannotCreateObject = 429;

TEST(ModuleState, AThreadThatWasNotStartedHasNoSurroundings) {
  RunInFreshThread([] {
    ExpectFailure([] { static_cast<void>(AttachedPlatform()); }, kObjectNotSet,
                  "The calendar component was not started on this thread");
    ExpectFailure([] { static_cast<void>(DictionaryObject()); }, kObjectNotSet,
                  "There is no dictionary object");
    ExpectFailure([] { static_cast<void>(SharedServicesObject()); }, kObjectNotSet);
  });
}

TEST(ModuleState, EveryThreadHasItsOwn) {
  RunInFreshThread([] {
    ComponentWorld component;
    RunInFreshThread([] {
      EXPECT_EQ(Module().platform, nullptr);
      EXPECT_EQ(Module().dictionary, nullptr);
      EXPECT_EQ(Module().shared_services, nullptr);
      EXPECT_FALSE(Module().is_error_table_filled);
    });
    EXPECT_NE(Module().dictionary, nullptr);
  });
}

TEST(ModuleState, TheInnermostSurroundingsHoldUntilTheyEnd) {
  RunInFreshThread([] {
    headless::World world;
    const auto attached = world.Platform();
    const auto outer = world.Platform();
    const auto inner = world.Platform();
    {
      const InSurroundings in_outer(outer);
      AttachPlatform(attached);
      EXPECT_EQ(&AttachedPlatform(), &outer);
      {
        const InSurroundings in_inner(inner);
        EXPECT_EQ(&AttachedPlatform(), &inner);
      }
      EXPECT_EQ(&AttachedPlatform(), &outer);
    }
    EXPECT_EQ(&AttachedPlatform(), &attached);
    DetachPlatform(outer);
    EXPECT_EQ(&AttachedPlatform(), &attached);
    DetachPlatform(attached);
    ExpectFailure([] { static_cast<void>(AttachedPlatform()); }, kObjectNotSet);
  });
}

TEST(ModuleState, CreatesTheDictionaryObjectByItsIdentifierOnce) {
  RunInFreshThread([] {
    headless::World world;
    const auto platform = world.Platform();
    AttachPlatform(platform);
    EnsureDictionaryObject();
    const auto first = Module().dictionary;
    EnsureDictionaryObject();
    EXPECT_EQ(Module().dictionary, first);
    EXPECT_EQ(world.log.CountOf(R"(objects.CreateObject("TessaroDicInProc.DictionaryClass"))"), 1u);
  });
}

TEST(ModuleState, ADictionaryObjectThatCannotBeCreatedLeavesNone) {
  RunInFreshThread([] {
    headless::World world;
    world.objects.RegisterFailing(platform::kDictionaryIdentifier, Failure(462, "Server unavailable"));
    const auto platform = world.Platform();
    AttachPlatform(platform);
    ExpectFailure([] { EnsureDictionaryObject(); }, 462, "Server unavailable");
    EXPECT_EQ(Module().dictionary, nullptr);
  });
}

TEST(ModuleState, ADictionaryObjectOfAnotherKindIsRefused) {
  RunInFreshThread([] {
    headless::World world;
    world.objects.Register(platform::kDictionaryIdentifier, [&world] { return world.services; });
    const auto platform = world.Platform();
    AttachPlatform(platform);
    ExpectFailure([] { EnsureDictionaryObject(); }, kCannotCreateObject,
                  "The object TessaroDicInProc.DictionaryClass is not of the kind expected");
    EXPECT_EQ(Module().dictionary, nullptr);
  });
}

TEST(ModuleState, CreatesTheSharedServicesOnFirstUseAndKeepsThem) {
  RunInFreshThread([] {
    headless::World world;
    const auto platform = world.Platform();
    AttachPlatform(platform);
    const auto* first = &SharedServicesObject();
    EXPECT_EQ(&SharedServicesObject(), first);
    EXPECT_EQ(world.log.CountOf(R"(objects.CreateObject("Tessaro.SharedServices"))"), 1u);
  });
}

TEST(ModuleState, SharedServicesThatCouldNotBeCreatedAreTriedAgain) {
  RunInFreshThread([] {
    headless::World world;
    const auto platform = world.Platform();
    AttachPlatform(platform);
    world.faults.FailAtCall(1);
    ExpectFailure([] { static_cast<void>(SharedServicesObject()); }, headless::FaultPlan::kFaultNumber);
    SharedServicesObject().TraceMessage("works now");
    EXPECT_EQ(world.services->Traces().size(), 1u);
  });
}

}  // namespace
}  // namespace ferrowind
