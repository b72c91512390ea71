#include <chrono>
#include <cstdlib>
#include <functional>
#include <iostream>
#include <memory>
#include <random>
#include <string>

#include "ferrowind/control/calendar.h"
#include "ferrowind/data/run_handler.h"
#include "ferrowind/planning/book_store.h"
#include "ferrowind/views/planning/planning_additions.h"
#include "ferrowind/views/planning/planning_windows.h"

#include "host/delivery/delivered_books.h"
#include "host/delivery/delivered_tables.h"
#include "tests/gui/windows/random_operator.h"
#include "tests/gui/windows/windows_fixture.h"

namespace ferrowind::gui {
namespace {

/// The number in the environment variable, or `otherwise` when there is none.
std::uint32_t NumberFrom(const char* variable, std::uint32_t otherwise) {
  const char* text = std::getenv(variable);
  return text == nullptr ? otherwise : static_cast<std::uint32_t>(std::stoul(text));
}

class RandomInputTest : public WindowsTest {
 protected:
  /// `reopen` shows the Calendars window.
  void Run(const std::function<void()>& reopen) {
    const auto seconds = std::chrono::seconds(NumberFrom("FERROWIND_RANDOM_SECONDS", 30));
    const std::uint32_t seed = NumberFrom("FERROWIND_RANDOM_SEED", std::random_device()());
    // Before anything happens, since a crash ends the program.
    std::cout << "FERROWIND_RANDOM_SEED=" << seed << std::endl;
    SCOPED_TRACE("FERROWIND_RANDOM_SEED=" + std::to_string(seed));
    RandomOperator random(desk_, seed, reopen);
    random.ActFor(seconds);
    std::cout << random.Actions() << " actions" << std::endl;
    EXPECT_GT(random.Actions(), 100);
    EXPECT_TRUE(desk_.IsDatabaseSound());
  }
};

/// FERROWIND_RANDOM_SECONDS makes the run longer or shorter, FERROWIND_RANDOM_SEED repeats one.
TEST_F(RandomInputTest, LeavesTheWindowsAliveAndTheDatabaseSound) {
  OpenDollar2028();
  Run([this] { ShowCalendars(); });
  OpenCalendars();
  WalkToNode(Tree(), {"EUR", "2026"});
  EXPECT_TRUE(Days().isEnabled());
  EXPECT_EQ(Days().Model()->Content().Cells().RecordCount(), 365U);
}

/// With the additions of planning, which lead to all of its windows.
class RandomPlanningTest : public RandomInputTest {
 protected:
  RandomPlanningTest() {
    with_additions_.additions = &additions_;
    control_ = std::make_unique<Calendar>(with_additions_);
    RunHandler(with_additions_, [] {
      const auto currencies = planning::CurrencyList::Load();
      for (const auto& [name, book, lines] : host::DeliveredBooks()) {
        if (name != "EUR" && name != "GBP" && name != "USD") continue;
        planning::StoreBook(currencies.Named(name).id, name, "", book);
      }
    });
  }
  ~RandomPlanningTest() override {
    // The windows of planning are dropped: what they hold unsaved, and would ask about, is anything.
    EXPECT_TRUE(control_->ForceClosing());
    control_.reset();
  }
  void OpenBoard() {
    RunHandler(with_additions_, [this] { windows_.OpenReadiness(); });
  }

  platform::Platform with_additions_ = desk_.Platform();
  PlanningWindows windows_{with_additions_, host::DeliveredDateTables()};
  PlanningAdditions additions_{{with_additions_, host::DeliveredDateTables(), windows_}};
  std::unique_ptr<Calendar> control_;
};

TEST_F(RandomPlanningTest, LeavesTheWindowsOfPlanningAliveAndTheDatabaseSound) {
  OpenBoard();
  int opened = 0;
  Run([&] {
    // In turns, so that each is the start of some of the ways.
    if (++opened % 2 == 0) {
      OpenBoard();
    } else {
      control_->Show();
    }
  });
}

}  // namespace
}  // namespace ferrowind::gui
