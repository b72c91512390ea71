#include "ferrowind/data/run_handler.h"

#include <functional>
#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ferrowind/data/error_reporting.h"
#include "ferrowind/data/ignoring_failure.h"
#include "ferrowind/data/pending_failure.h"
#include "ferrowind/data/runtime_failure.h"

#include "tests/support/component_world.h"
#include "tests/support/run_in_fresh_thread.h"

namespace ferrowind {
namespace {

using headless::ReportedError;
using platform::Failure;
using platform::Interruption;
using testing::ComponentWorld;
using testing::NumberedMessage;
using testing::RunInFreshThread;

TEST(RunHandler, RunsTheBodyAndReportsNothing) {
  RunInFreshThread([] {
    ComponentWorld component;
    bool has_run = false;
    RunHandler([&] { has_run = true; });
    EXPECT_TRUE(has_run);
    EXPECT_TRUE(component.SeenByOperator().empty());
  });
}

TEST(RunHandler, ReportsAFailureWithItsNumberAndText) {
  RunInFreshThread([] {
    ComponentWorld component;
    RunHandler([] { throw Failure(35601, "Element not found"); });
    EXPECT_EQ(component.world.services->Reports(),
              (std::vector<ReportedError>{{35601, "Element not found"}}));
  });
}

TEST(RunHandler, ReportsWhatWasPendingBeforeTheFailure) {
  RunInFreshThread([] {
    ComponentWorld component;
    SetPendingFailure(1, "pending");
    RunHandler([] { throw Failure(2, "runtime"); });
    EXPECT_EQ(component.world.services->Reports(),
              (std::vector<ReportedError>{{1, "pending"}, {2, "runtime"}}));
  });
}

TEST(RunHandler, LeavesAPendingFailureAloneWhenTheBodySucceeds) {
  RunInFreshThread([] {
    ComponentWorld component;
    RunHandler([] { SetPendingFailure(1, "pending"); });
    EXPECT_TRUE(component.SeenByOperator().empty());
    EXPECT_EQ(Module().pending_failure_count, 1);
  });
}

TEST(RunHandler, ReportsAnExceptionOfAnotherKindByItsText) {
  RunInFreshThread([] {
    ComponentWorld component;
    RunHandler([] { throw std::out_of_range("position 7"); });
    EXPECT_EQ(component.world.services->Reports(),
              (std::vector<ReportedError>{{51, "Internal error: position 7"}}));
  });
}

TEST(RunHandler, ReportsThatMemoryRanOut) {
  RunInFreshThread([] {
    ComponentWorld component;
    RunHandler([] { throw std::bad_alloc(); });
    EXPECT_EQ(component.world.services->Reports(), (std::vector<ReportedError>{{7, "Out of memory"}}));
  });
}

TEST(RunHandler, ReportsWhatAHostThrowsThatIsNoException) {
  RunInFreshThread([] {
    ComponentWorld component;
    RunHandler([] { throw 42; });
    EXPECT_EQ(
        component.world.services->Reports(),
        (std::vector<ReportedError>{{51, "Internal error: an exception that tells nothing of itself"}}));
    EXPECT_NO_THROW(IgnoringFailure([] { throw 42; }));
  });
}

/// Services whose reports throw what is no exception.
class OddServices : public headless::HeadlessSharedServices {
 public:
  using HeadlessSharedServices::HeadlessSharedServices;
  void ReportError(std::int32_t /*number*/, const std::string& /*description*/) override { throw 42; }
};

TEST(RunHandler, SurvivesAReportThatThrowsWhatIsNoException) {
  RunInFreshThread([] {
    ComponentWorld component;
    Module().shared_services = std::make_shared<OddServices>(component.world.log);
    RunHandler([] { throw Failure(5, "first"); });
    EXPECT_EQ(Module().runtime_failure.description, "");
  });
}

TEST(RunHandler, SurvivesAReportThatFails) {
  RunInFreshThread([] {
    ComponentWorld component;
    component.world.faults.FailAtCall(1);
    RunHandler([] { throw Failure(5, "first"); });
    EXPECT_TRUE(component.world.faults.HasFired());
    EXPECT_TRUE(component.SeenByOperator().empty());
    RunHandler([] { throw Failure(6, "second"); });
    EXPECT_EQ(component.world.services->Reports(), (std::vector<ReportedError>{{6, "second"}}));
  });
}

TEST(RunHandler, SurvivesOnAThreadWithoutSharedServices) {
  RunInFreshThread([] {
    RunHandler([] { throw Failure(5, "nobody can be told"); });
    EXPECT_EQ(Module().runtime_failure.description, "");
  });
}

TEST(RunHandler, EndsAnInterruptedHandlerWithoutAReport) {
  RunInFreshThread([] {
    ComponentWorld component;
    SetPendingFailure(1, "pending");
    RunHandler([] { throw Interruption("the window has closed"); });
    EXPECT_TRUE(component.SeenByOperator().empty());
    EXPECT_EQ(Module().pending_failure_count, 1);
    EXPECT_EQ(component.world.services->Traces(),
              (std::vector<std::string>{"Failure 18: the window has closed"}));
  });
}

TEST(RunStep, ReportsAFailureAndGoesOn) {
  RunInFreshThread([] {
    ComponentWorld component;
    bool went_on = false;
    RunHandler([&] {
      RunStep([] { throw Failure(5, "first"); });
      went_on = true;
    });
    EXPECT_TRUE(went_on);
    EXPECT_EQ(component.world.services->Reports(), (std::vector<ReportedError>{{5, "first"}}));
  });
}

TEST(RunStep, GoesOnWhenTheReportFails) {
  RunInFreshThread([] {
    ComponentWorld component;
    component.world.faults.FailAtCall(1);
    EXPECT_NO_THROW(RunStep([] { throw Failure(5, "first"); }));
    EXPECT_TRUE(component.world.faults.HasFired());
  });
}

/// Services whose messages are never answered, since their window closes.
class UnansweredServices : public headless::HeadlessSharedServices {
 public:
  using HeadlessSharedServices::HeadlessSharedServices;
  void ReportError(std::int32_t /*number*/, const std::string& /*description*/) override {
    throw Interruption("unanswered");
  }
};

TEST(RunStep, ThatIsInterruptedEndsTheHandler) {
  RunInFreshThread([] {
    ComponentWorld component;
    bool went_on = false;
    const auto run = [&](const std::function<void()>& step) {
      RunHandler([&] {
        RunStep(step);
        went_on = true;
      });
    };
    run([] { throw Interruption("closed"); });
    EXPECT_FALSE(went_on);
    Module().shared_services = std::make_shared<UnansweredServices>(component.world.log);
    run([] { throw Failure(5, "reported to nobody"); });
    EXPECT_FALSE(went_on);
    EXPECT_EQ(Module().runtime_failure.description, "");
  });
}

TEST(RuntimeFailureScope, LetsAReportInTheHandlerShowTheCaughtFailureFirst) {
  RunInFreshThread([] {
    ComponentWorld component;
    try {
      throw Failure(3021, "No current record");
    } catch (const std::exception&) {
      const RuntimeFailureScope caught;
      ShowErrorMessage(3);
    }
    EXPECT_EQ(component.SeenByOperator(),
              (std::vector<std::string>{R"(services.ReportError(3021, "No current record"))",
                                        NumberedMessage("Can't load holiday types from database")}));
  });
}

TEST(RuntimeFailureScope, AFailureThatNobodyReportedEndsWithItsHandler) {
  RunInFreshThread([] {
    ComponentWorld component;
    try {
      throw Failure(3021, "No current record");
    } catch (const std::exception&) {
      const RuntimeFailureScope caught;
      EXPECT_EQ(Module().runtime_failure.number, 3021);
    }
    ShowErrorMessage(3);
    EXPECT_TRUE(component.world.services->Reports().empty());
  });
}

TEST(IgnoringFailure, EndsTheStepAndLeavesNothingToReport) {
  RunInFreshThread([] {
    ComponentWorld component;
    bool went_on = false;
    IgnoringFailure([&] {
      throw Failure(5, "ignored");
      went_on = true;
    });
    EXPECT_FALSE(went_on);
    ShowErrorMessage(3);
    EXPECT_TRUE(component.world.services->Reports().empty());
  });
}

}  // namespace
}  // namespace ferrowind
