#pragma once

#include <cstddef>
#include <functional>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/component_world.h"
#include "tests/support/run_in_fresh_thread.h"

namespace ferrowind::testing {

/// What the gateway to the database passes over without a word, each parameter and each record set for
/// itself.
[[nodiscard]] inline bool IsPassedOver(const std::string& call) {
  return call == "command.SetParameter" || call == "services.TraceMessage" || call.starts_with("cursor.");
}
/// The same, and where a window stood, without which it comes up in the middle of the screen.
[[nodiscard]] inline bool IsPassedOverAtOpening(const std::string& call) {
  return call == "services.ReadSetting" || IsPassedOver(call);
}

/// What happens in a test's `World`, which has the headless one as `world`, while a call of the surroundings
/// fails.
template <typename World>
struct FaultScenario {
  /// Brings a world, new or as the run before has left it, to where the operator begins.
  std::function<void(World&)> arrange = [](World&) {};
  /// What the operator does. Nothing may be thrown from it.
  std::function<void(World&)> act;
  /// What holds afterwards, with nothing failing any more.
  std::function<void(World&)> look;
  /// Whether the operator need not be told when that call fails.
  std::function<bool(const std::string& call)> is_silent = IsPassedOver;
  /// The given windows tell of a failure and then of what they could not do.
  std::size_t most_told = 1;
};

/// Plays the scenario once for each call of the surroundings that it makes, at least `fewest_calls` of them,
/// with that one failing. The operator must be told of it, and not over and over.
template <typename World>
void FailEachCall(const FaultScenario<World>& scenario, int fewest_calls) {
  // Making a world takes longer than what happens in it, and a window must bear more than one failure.
  constexpr int kRunsOfAWorld = 20;
  constexpr int kMostCalls = 1500;
  int call = 1;
  for (bool has_fired = true; has_fired && call < kMostCalls && !::testing::Test::HasFatalFailure();) {
    RunInFreshThread([&] {
      World world;
      headless::World& surroundings = world.world;
      for (int run = 0; run < kRunsOfAWorld && has_fired; ++run, ++call) {
        scenario.arrange(world);
        surroundings.log.Clear();
        surroundings.faults.FailAtCall(call);
        EXPECT_NO_THROW(scenario.act(world));
        surroundings.faults.Disarm();
        has_fired = surroundings.faults.HasFired();
        const std::string failed = surroundings.faults.FailedCall();
        SCOPED_TRACE("call " + std::to_string(call) + ", " + failed);
        const auto told = SeenByOperator(surroundings.log);
        const bool is_told = has_fired && !scenario.is_silent(failed);
        EXPECT_LE(told.size(), has_fired ? scenario.most_told : 0) << ::testing::PrintToString(told);
        EXPECT_GE(told.size(), is_told ? 1U : 0U);
        scenario.look(world);
      }
    });
  }
  EXPECT_GT(call, fewest_calls) << "the scenario did not run";
  EXPECT_LT(call, kMostCalls);
}

}  // namespace ferrowind::testing
