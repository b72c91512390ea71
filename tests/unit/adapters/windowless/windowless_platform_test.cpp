#include "ferrowind/adapters/windowless/windowless_platform.h"

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/headless/memory_database.h"
#include "ferrowind/adapters/headless/memory_engine.h"
#include "ferrowind/control/calendar.h"
#include "ferrowind/platform/values/failure.h"

#include "tests/support/expect_failure.h"
#include "tests/support/run_in_fresh_thread.h"

namespace ferrowind {
namespace {

using platform::failure_number::kCannotCreateObject;
using ::testing::ElementsAre;
using testing::ExpectFailure;
using ::testing::Pair;
using testing::RunInFreshThread;

constexpr const char* kDatabase = "memory:office";
constexpr const char* kNoWindows = "This program has no windows";

class Windowless : public ::testing::Test {
 protected:
  Windowless() {
    engine_->CreateDatabase("office");
    engines_.Register("memory", engine_);
  }

  [[nodiscard]] WindowlessPlatform::Listener Keeping() {
    return [this](std::int32_t number, const std::string& text) { told_.emplace_back(number, text); };
  }
  [[nodiscard]] static std::shared_ptr<platform::SharedServices> ServicesOf(const WindowlessPlatform& given) {
    return std::dynamic_pointer_cast<platform::SharedServices>(
        given.Get().objects.CreateObject(platform::kSharedServicesIdentifier));
  }

  std::shared_ptr<headless::MemoryEngine> engine_ = std::make_shared<headless::MemoryEngine>();
  platform::EngineRegistry engines_;
  std::vector<std::pair<std::int32_t, std::string>> told_;
};

TEST_F(Windowless, HasADictionaryOfTheDatabase) {
  const WindowlessPlatform surroundings(engines_, kDatabase);
  const auto dictionary = std::dynamic_pointer_cast<platform::Dictionary>(
      surroundings.Get().objects.CreateObject(platform::kDictionaryIdentifier));
  ASSERT_NE(dictionary, nullptr);
  EXPECT_EQ(dictionary->dic_ConnectionString(), kDatabase);
  EXPECT_GT(dictionary->dic_GetDicRecByFilter("Ccy", "Ccy = 'EUR'")->RowCount(), 0U);
}

TEST_F(Windowless, RefusesWhatNeedsAnOperator) {
  const WindowlessPlatform surroundings(engines_, kDatabase);
  const platform::Platform& platform = surroundings.Get();
  ExpectFailure(
      [&] {
        static_cast<void>(platform.toolkit.CreateForm({"fmCalendar", ""}));
      },
      kCannotCreateObject, kNoWindows);
  ExpectFailure([&] { static_cast<void>(platform.locale.MonthName(1)); }, kCannotCreateObject, kNoWindows);
  ExpectFailure([&] { ServicesOf(surroundings)->ReportError(5, "x"); }, kCannotCreateObject, kNoWindows);
}

TEST_F(Windowless, TellsItsListenerWhatAnOperatorWouldBeTold) {
  const WindowlessPlatform surroundings(engines_, kDatabase, Keeping());
  const auto services = ServicesOf(surroundings);
  services->ReportError(5, "a failure");
  EXPECT_EQ(services->ShowMessage("a message", 1, 1, 1, nullptr, "", true, true), 1);
  EXPECT_THAT(told_, ElementsAre(Pair(5, "a failure"), Pair(0, "a message")));
}

TEST_F(Windowless, AControlHasItsMapsAndOpensNothing) {
  RunInFreshThread([this] {
    const WindowlessPlatform surroundings(engines_, kDatabase, Keeping());
    Calendar calendar(surroundings.Get());
    EXPECT_EQ(calendar.Headers()->LocalNames("Comment")->FieldName(), "Comment");
    EXPECT_TRUE(told_.empty());
    calendar.Show();
    EXPECT_THAT(told_, ElementsAre(Pair(kCannotCreateObject, kNoWindows)));
    EXPECT_TRUE(calendar.ForceClosing());
    EXPECT_GT(calendar.HolidayHeaders()->Count(), 0);
  });
}

TEST_F(Windowless, AControlWithoutAListenerLivesOn) {
  RunInFreshThread([this] {
    const WindowlessPlatform surroundings(engines_, kDatabase);
    Calendar calendar(surroundings.Get());
    calendar.Show();
    EXPECT_TRUE(calendar.ForceClosing());
  });
}

}  // namespace
}  // namespace ferrowind
