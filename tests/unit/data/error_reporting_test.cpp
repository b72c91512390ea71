#include "ferrowind/data/error_reporting.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "ferrowind/data/exec_proc.h"
#include "ferrowind/data/pending_failure.h"
#include "ferrowind/data/run_handler.h"

#include "tests/support/component_world.h"
#include "tests/support/expect_failure.h"
#include "tests/support/run_in_fresh_thread.h"

namespace ferrowind {
namespace {

using headless::CommandStep;
using platform::Failure;
using testing::ComponentWorld;
using testing::ExpectFailure;
using testing::NumberedMessage;
using testing::RunInFreshThread;

constexpr std::int32_t kSubscriptOutOfRange = 9;
using Texts = std::vector<std::string>;

/// Shared services whose next report lets another handler run before the operator has answered it, as a
/// message box does that waits in an event loop.
class InterruptedServices : public headless::HeadlessSharedServices {
 public:
  using HeadlessSharedServices::HeadlessSharedServices;
  void ReportError(std::int32_t number, const std::string& description) override {
    if (const auto interruption = std::exchange(during_report, nullptr)) interruption();
    HeadlessSharedServices::ReportError(number, description);
  }
  std::function<void()> during_report;
};

/// Puts such services in the place of the component's own.
InterruptedServices& Interrupt(ComponentWorld& component) {
  const auto services = std::make_shared<InterruptedServices>(component.world.log);
  Module().shared_services = services;
  return *services;
}

TEST(ShowErrorMessage, ShowsOneLineOfTheComponentAndTheMessageWithTheErrorStyle) {
  RunInFreshThread([] {
    ComponentWorld component;
    ShowErrorMessage(1);
    ASSERT_EQ(component.world.services->Messages().size(), 1u);
    const auto& message = component.world.services->Messages()[0];
    EXPECT_EQ(message.text, "Tessaro Calendar. Can't remove holiday");
    EXPECT_EQ(message.style, 3);
    EXPECT_EQ(message.buttons, 1);
    EXPECT_EQ(message.default_button, 1);
    EXPECT_EQ(message.owner, "");
    EXPECT_EQ(message.title, "");
    EXPECT_TRUE(message.modal);
    EXPECT_TRUE(message.on_top);
  });
}

TEST(ShowErrorMessage, ShowsOnlyTheMessageWhenNothingIsPending) {
  RunInFreshThread([] {
    ComponentWorld component;
    ShowErrorMessage(11);
    EXPECT_EQ(component.SeenByOperator(), Texts{NumberedMessage("Can't restore holiday")});
  });
}

TEST(ShowErrorMessage, FillsTheTableAtTheFirstReportOfTheThread) {
  RunInFreshThread([] {
    ComponentWorld component;
    EXPECT_FALSE(Module().is_error_table_filled);
    ShowErrorMessage(0);
    EXPECT_TRUE(Module().is_error_table_filled);
    EXPECT_EQ(Module().error_table[5].message, "Can't load currency");
  });
}

TEST(ShowErrorMessage, FillsTheTableBeforeItReportsWhatIsPending) {
  RunInFreshThread([] {
    ComponentWorld component;
    SetPendingFailure(1, "pending");
    component.world.faults.FailAtCall(1);
    ExpectFailure([] { ShowErrorMessage(0); }, headless::FaultPlan::kFaultNumber,
                  "Planned fault in services.ReportError");
    EXPECT_TRUE(Module().is_error_table_filled);
  });
}

TEST(ShowErrorMessage, DoesNotFillTheTableASecondTime) {
  RunInFreshThread([] {
    ComponentWorld component;
    ShowErrorMessage(0);
    Module().error_table[0].message = "changed";
    ShowErrorMessage(0);
    EXPECT_EQ(component.SeenByOperator().back(), NumberedMessage("changed"));
  });
}

TEST(ShowErrorMessage, ShowsTheGatewayFailureFirstAndASecondReportOnlyTheMessage) {
  RunInFreshThread([] {
    ComponentWorld component;
    component.world.commands.Answer("CldAllInfo");
    component.world.commands.FailAt(CommandStep::kExecute, Failure(-2147217843, "Login failed"));
    std::shared_ptr<SourceValues> results;
    ExecProc("CldAllInfo", nullptr, results);
    const std::string message = NumberedMessage("Can't load holiday types from database");

    ShowErrorMessage(3);
    EXPECT_EQ(component.SeenByOperator(),
              (Texts{R"(services.ReportError(-2147217843, "Login failed"))", message}));
    ShowErrorMessage(3);
    EXPECT_EQ(component.SeenByOperator(),
              (Texts{R"(services.ReportError(-2147217843, "Login failed"))", message, message}));
  });
}

TEST(ShowErrorMessage, ShowsThePendingFailureThenTheRuntimeFailureThenTheMessage) {
  RunInFreshThread([] {
    ComponentWorld component;
    SetPendingFailure(11, "pending");
    Module().runtime_failure = {22, "runtime"};
    ShowErrorMessage(0);
    EXPECT_EQ(component.SeenByOperator(),
              (Texts{R"(services.ReportError(11, "pending"))", R"(services.ReportError(22, "runtime"))",
                     NumberedMessage("Can't add holiday to database")}));
  });
}

TEST(ShowErrorMessage, AnIndexOutsideTheTableFailsAfterThePendingFailuresWereShown) {
  for (const std::int32_t index : {-1, 12}) {
    RunInFreshThread([index] {
      ComponentWorld component;
      SetPendingFailure(11, "pending");
      ExpectFailure([index] { ShowErrorMessage(index); }, kSubscriptOutOfRange, "Subscript out of range");
      EXPECT_EQ(component.SeenByOperator(), Texts{R"(services.ReportError(11, "pending"))"});
      EXPECT_EQ(Module().pending_failure_count, 0);
    });
  }
}

TEST(ShowErrorMessage, AFailureOfTheDisplayReachesTheCaller) {
  RunInFreshThread([] {
    ComponentWorld component;
    component.world.faults.FailAtCall(1);
    ExpectFailure([] { ShowErrorMessage(0); }, headless::FaultPlan::kFaultNumber,
                  "Planned fault in services.ShowMessage");
  });
}

TEST(ShowErrorMessage, CreatesTheSharedServicesOnFirstUse) {
  RunInFreshThread([] {
    headless::World world;
    const auto platform = world.Platform();
    AttachPlatform(platform);
    ShowErrorMessage(0);
    EXPECT_EQ(world.log.Calls().at(0), R"(objects.CreateObject("Tessaro.SharedServices"))");
    EXPECT_EQ(world.services->Messages().size(), 1u);
  });
}

TEST(ShowPendingFailures, DoesNothingWhenNothingIsPending) {
  RunInFreshThread([] {
    ComponentWorld component;
    ShowPendingFailures();
    EXPECT_TRUE(component.world.log.Calls().empty());
  });
}

TEST(ShowPendingFailures, ReportsEveryRecordUpToTheCountInOrderAndClearsTheCount) {
  RunInFreshThread([] {
    ComponentWorld component;
    Module().pending_failures[0] = {1, "one"};
    Module().pending_failures[1] = {2, "two"};
    Module().pending_failures[2] = {3, "not counted"};
    Module().pending_failure_count = 2;
    ShowPendingFailures();
    EXPECT_EQ(component.world.services->Reports(),
              (std::vector<headless::ReportedError>{{1, "one"}, {2, "two"}}));
    EXPECT_EQ(Module().pending_failure_count, 0);
  });
}

TEST(ShowPendingFailures, ReportsTheRuntimeFailureOnceAndClearsIt) {
  RunInFreshThread([] {
    ComponentWorld component;
    Module().runtime_failure = {91, "Object variable not set"};
    ShowPendingFailures();
    ShowPendingFailures();
    EXPECT_EQ(component.world.services->Reports(),
              (std::vector<headless::ReportedError>{{91, "Object variable not set"}}));
  });
}

TEST(ShowPendingFailures, ARuntimeFailureOfBlanksIsClearedAndNotReported) {
  RunInFreshThread([] {
    ComponentWorld component;
    Module().runtime_failure = {91, "   "};
    ShowPendingFailures();
    EXPECT_TRUE(component.world.services->Reports().empty());
    EXPECT_EQ(Module().runtime_failure.number, 0);
    EXPECT_EQ(Module().runtime_failure.description, "");
  });
}

TEST(ShowPendingFailures, ReportsTheDescriptionOfTheRuntimeFailureUntrimmed) {
  RunInFreshThread([] {
    ComponentWorld component;
    Module().runtime_failure = {91, " text "};
    ShowPendingFailures();
    EXPECT_EQ(component.world.services->Reports(), (std::vector<headless::ReportedError>{{91, " text "}}));
  });
}

TEST(ShowPendingFailures, AFailureOnShowKeepsItsTextWhileAnotherHandlerReplacesTheRecord) {
  RunInFreshThread([] {
    ComponentWorld component;
    InterruptedServices& services = Interrupt(component);
    SetPendingFailure(1, "the first one, longer than a text that is kept in place");
    services.during_report = [] { SetPendingFailure(2, "second"); };
    ShowPendingFailures();
    EXPECT_EQ(services.Reports(), (std::vector<headless::ReportedError>{
                                      {1, "the first one, longer than a text that is kept in place"}}));
  });
}

TEST(ShowPendingFailures, ARuntimeFailureIsStillReportedWhenAnotherHandlerFailsBeforeItsTurn) {
  RunInFreshThread([] {
    ComponentWorld component;
    InterruptedServices& services = Interrupt(component);
    SetPendingFailure(1, "pending");
    services.during_report = [] {
      Module().pending_failure_count = 0;
      RunHandler([] { throw Failure(3, "in another handler"); });
    };
    RunHandler([] { throw Failure(2, "runtime"); });
    EXPECT_EQ(services.Reports(), (std::vector<headless::ReportedError>{
                                      {3, "in another handler"}, {1, "pending"}, {2, "runtime"}}));
    EXPECT_EQ(Module().runtime_failure.description, "");
  });
}

TEST(ShowPendingFailures, ARuntimeFailureOnShowKeepsItsTextWhileAnotherHandlerClearsIt) {
  RunInFreshThread([] {
    ComponentWorld component;
    InterruptedServices& services = Interrupt(component);
    services.during_report = [] { Module().runtime_failure = {}; };
    Module().runtime_failure = {2, "runtime"};
    ShowPendingFailures();
    EXPECT_EQ(services.Reports(), (std::vector<headless::ReportedError>{{2, "runtime"}}));
  });
}

TEST(ShowPendingFailures, AFailureOfTheReportReachesTheCaller) {
  RunInFreshThread([] {
    ComponentWorld component;
    SetPendingFailure(1, "one");
    component.world.faults.FailAtCall(1);
    ExpectFailure([] { ShowPendingFailures(); }, headless::FaultPlan::kFaultNumber);
  });
}

}  // namespace
}  // namespace ferrowind
