#include <chrono>
#include <cstdlib>
#include <iostream>
#include <random>
#include <string>

#include "tests/gui/windows/random_operator.h"
#include "tests/gui/windows/windows_fixture.h"

namespace ferrowind::gui {
namespace {

/// The number in the environment variable, or `otherwise` when there is none.
std::uint32_t NumberFrom(const char* variable, std::uint32_t otherwise) {
  const char* text = std::getenv(variable);
  return text == nullptr ? otherwise : static_cast<std::uint32_t>(std::stoul(text));
}

using RandomInputTest = WindowsTest;

/// FERROWIND_RANDOM_SECONDS makes the run longer or shorter, FERROWIND_RANDOM_SEED repeats one.
TEST_F(RandomInputTest, LeavesTheWindowsAliveAndTheDatabaseSound) {
  const auto seconds = std::chrono::seconds(NumberFrom("FERROWIND_RANDOM_SECONDS", 30));
  const std::uint32_t seed = NumberFrom("FERROWIND_RANDOM_SEED", std::random_device()());
  // Before anything happens, since a crash ends the program.
  std::cout << "FERROWIND_RANDOM_SEED=" << seed << std::endl;
  SCOPED_TRACE("FERROWIND_RANDOM_SEED=" + std::to_string(seed));
  OpenDollar2028();
  RandomOperator random(desk_, seed, [this] { ShowCalendars(); });
  random.ActFor(seconds);
  std::cout << random.Actions() << " actions" << std::endl;

  EXPECT_GT(random.Actions(), 100);
  EXPECT_TRUE(desk_.IsDatabaseSound());
  OpenCalendars();
  WalkToNode(Tree(), {"EUR", "2026"});
  EXPECT_TRUE(Days().isEnabled());
  EXPECT_EQ(Days().Model()->Content().Cells().RecordCount(), 365U);
}

}  // namespace
}  // namespace ferrowind::gui
