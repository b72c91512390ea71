// The dictionary object and the shared services of a thread, and when a host may let them go.
#include <cstdint>
#include <memory>

#include <gtest/gtest.h>

#include "ferrowind/adapters/headless/world.h"
#include "ferrowind/control/calendar.h"

#include "tests/support/expect_failure.h"
#include "tests/support/run_in_fresh_thread.h"
#include "tests/unit/control/desk.h"

namespace ferrowind {
namespace {

using testing::Desk;
using testing::ExpectFailure;
using testing::RunInFreshThread;

constexpr const char* kDictionaryIsMade = R"(objects.CreateObject("TessaroDicInProc.DictionaryClass"))";
constexpr const char* kServicesAreMade = R"(objects.CreateObject("Tessaro.SharedServices"))";

TEST(ThreadObjects, AreLetGoWhenTheHostAsksForIt) {
  RunInFreshThread([] {
    Desk desk;
    desk.control->Show();
    const std::weak_ptr<headless::HeadlessDictionary> dictionary = desk.world.dictionary;
    const std::weak_ptr<headless::HeadlessSharedServices> services = desk.world.services;
    desk.Destroy();
    desk.world.dictionary.reset();
    desk.world.services.reset();
    EXPECT_FALSE(dictionary.expired());
    EXPECT_FALSE(services.expired());
    Calendar::ReleaseThreadObjects();
    EXPECT_TRUE(dictionary.expired());
    EXPECT_TRUE(services.expired());
  });
}

TEST(ThreadObjects, AreMadeAnewByTheNextControl) {
  RunInFreshThread([] {
    {
      const Desk before;
      before.control->Show();
    }
    Calendar::ReleaseThreadObjects();
    const Desk next;
    next.control->Show();
    EXPECT_TRUE(next.world.log.Contains(kDictionaryIsMade));
    EXPECT_TRUE(next.world.log.Contains(kServicesAreMade));
  });
}

TEST(ThreadObjects, StayWhileTheThreadHasAControl) {
  RunInFreshThread([] {
    Desk first;
    const Desk second;
    first.control->Show();
    first.Destroy();
    constexpr std::int32_t kInvalidArgument = 5;
    ExpectFailure([] { Calendar::ReleaseThreadObjects(); }, kInvalidArgument);
    second.control->Show();
    EXPECT_TRUE(second.Window().IsShown());
    EXPECT_FALSE(second.world.log.Contains(kDictionaryIsMade));
  });
}

TEST(ThreadObjects, CanBeLetGoOfBeforeThereAreAny) {
  RunInFreshThread([] { EXPECT_NO_THROW(Calendar::ReleaseThreadObjects()); });
}

}  // namespace
}  // namespace ferrowind
