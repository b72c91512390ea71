#include "ferrowind/views/common/window_placement.h"

#include <limits>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/expect_failure.h"
#include "tests/support/run_in_fresh_thread.h"
#include "tests/unit/views/common/grid_world.h"

namespace ferrowind {
namespace {

using platform::Value;
using testing::GridWorld;
using testing::RunInFreshThread;

constexpr const char* kSection = "\\Tessaro\\Calendar\\Window";

struct Place {
  float left;
  float top;
  float width;
  float height;
  friend bool operator==(const Place&, const Place&) = default;
};

/// A screen of 20000 by 10000 and a window of 6000 by 4000.
struct PlacementWorld : GridWorld {
  PlacementWorld() {
    world.toolkit.SetScreen(20000, 10000);
    PutTo({100, 200, 6000, 4000});
    world.log.Clear();
  }
  void PutTo(const Place& place) {
    form->SetLeft(place.left);
    form->SetTop(place.top);
    form->SetWidth(place.width);
    form->SetHeight(place.height);
  }
  void Store(const std::string& name, const Value& value) {
    world.services->PutSetting(kSection, name, value);
  }
  void Restore() { RestoreWindowPlacement(platform.toolkit, *form, kSection); }
  [[nodiscard]] Place Now() const { return {form->Left(), form->Top(), form->Width(), form->Height()}; }
};

TEST(SaveWindowPlacement, WritesLeftTopWidthAndHeightInThisOrder) {
  RunInFreshThread([] {
    PlacementWorld world;
    SaveWindowPlacement(*world.form, kSection);
    const std::string write = std::string("services.WriteSetting(\"") + kSection + "\", ";
    EXPECT_THAT(world.world.log.Calls(),
                ::testing::ElementsAre(write + R"("Left", 100))", write + R"("Top", 200))",
                                       write + R"("Width", 6000))", write + R"("Height", 4000))"));
  });
}

TEST(SaveWindowPlacement, WritesSinglePrecisionNumbers) {
  RunInFreshThread([] {
    PlacementWorld world;
    world.form->SetLeft(-1234.5F);
    SaveWindowPlacement(*world.form, kSection);
    EXPECT_EQ(world.world.services->Setting(kSection, "Left"), Value(-1234.5F));
    EXPECT_TRUE(world.world.services->Setting(kSection, "Height")->Is<float>());
  });
}

TEST(SaveWindowPlacement, AFailureOfTheSettingsReachesTheCaller) {
  RunInFreshThread([] {
    PlacementWorld world;
    world.world.faults.FailAtCall(2);
    testing::ExpectFailure([&] { SaveWindowPlacement(*world.form, kSection); },
                           headless::FaultPlan::kFaultNumber);
    EXPECT_FALSE(world.world.services->Setting(kSection, "Width").has_value());
  });
}

TEST(RestoreWindowPlacement, CentresAndThenReadsEachValueWithTheCurrentOneAsTheDefault) {
  RunInFreshThread([] {
    PlacementWorld world;
    world.Restore();
    const std::string read = std::string("services.ReadSetting(\"") + kSection + "\", ";
    EXPECT_THAT(world.world.log.Calls(),
                ::testing::ElementsAre("fmGrid.SetLeft(7000)", "fmGrid.SetTop(3000)",
                                       read + R"("Left", empty, 7000))", "fmGrid.SetLeft(7000)",
                                       read + R"("Top", empty, 3000))", "fmGrid.SetTop(3000)",
                                       read + R"("Width", empty, 6000))", "fmGrid.SetWidth(6000)",
                                       read + R"("Height", empty, 4000))", "fmGrid.SetHeight(4000)"));
  });
}

TEST(RestoreWindowPlacement, TheFirstRunOpensCentredAtTheDesignedSize) {
  RunInFreshThread([] {
    PlacementWorld world;
    world.Restore();
    EXPECT_EQ(world.Now(), (Place{7000, 3000, 6000, 4000}));
  });
}

TEST(RestoreWindowPlacement, TakesWhatWasSaved) {
  RunInFreshThread([] {
    PlacementWorld world;
    world.PutTo({1, 2, 3000, 2000});
    SaveWindowPlacement(*world.form, kSection);
    world.PutTo({0, 0, 6000, 4000});
    world.Restore();
    EXPECT_EQ(world.Now(), (Place{1, 2, 3000, 2000}));
  });
}

TEST(RestoreWindowPlacement, TakesLeftAndTopAloneAndKeepsTheDesignedSize) {
  RunInFreshThread([] {
    PlacementWorld world;
    world.Store("Left", 10.0F);
    world.Store("Top", 20.0F);
    world.Restore();
    EXPECT_EQ(world.Now(), (Place{10, 20, 6000, 4000}));
  });
}

TEST(RestoreWindowPlacement, AValueThatIsNoNumberIsLeftOutAndTheOthersTaken) {
  const char* const names[] = {"Left", "Top", "Width", "Height"};
  const Place expected[] = {{7000, 2, 3, 4}, {1, 3000, 3, 4}, {1, 2, 6000, 4}, {1, 2, 3, 4000}};
  for (std::size_t i = 0; i < 4; ++i) {
    for (const Value& broken : {Value("wide"), Value()}) {
      RunInFreshThread([&] {
        PlacementWorld world;
        for (std::size_t k = 0; k < 4; ++k) world.Store(names[k], static_cast<float>(k + 1));
        world.Store(names[i], broken);
        world.Restore();
        EXPECT_EQ(world.Now(), expected[i]) << names[i];
      });
    }
  }
}

TEST(RestoreWindowPlacement, TakesANumberOfAnotherTypeAndOneWrittenAsText) {
  RunInFreshThread([] {
    PlacementWorld world;
    world.Store("Left", 300);
    world.Store("Top", "450.5");
    world.Store("Width", 5000.0);
    world.Restore();
    EXPECT_EQ(world.Now(), (Place{300, 450.5F, 5000, 4000}));
  });
}

TEST(RestoreWindowPlacement, TakesAPositionBeyondTheScreenAsItIs) {
  RunInFreshThread([] {
    PlacementWorld world;
    world.Store("Left", 90000.0F);
    world.Store("Top", -48000.0F);
    world.Restore();
    EXPECT_EQ(world.Now(), (Place{90000, -48000, 6000, 4000}));
  });
}

TEST(RestoreWindowPlacement, ASizeThatTheWindowRefusesIsLeftOut) {
  RunInFreshThread([] {
    PlacementWorld world;
    world.Store("Width", -100.0F);
    world.Store("Height", std::numeric_limits<float>::infinity());
    world.Store("Left", 5.0F);
    world.Restore();
    EXPECT_EQ(world.Now(), (Place{5, 3000, 6000, 4000}));
  });
}

TEST(RestoreWindowPlacement, AReadThatFailsIsLeftOutSilentlyAndTheOthersTaken) {
  const Place expected[] = {{7000, 2, 3, 4}, {1, 3000, 3, 4}, {1, 2, 6000, 4}, {1, 2, 3, 4000}};
  for (int call = 1; call <= 4; ++call) {
    RunInFreshThread([&] {
      PlacementWorld world;
      world.Store("Left", 1.0F);
      world.Store("Top", 2.0F);
      world.Store("Width", 3.0F);
      world.Store("Height", 4.0F);
      world.world.faults.FailAtCall(call);
      world.Restore();
      EXPECT_EQ(world.Now(), expected[call - 1]);
      EXPECT_TRUE(world.SeenByOperator().empty());
    });
  }
}

}  // namespace
}  // namespace ferrowind
