// The order and the arguments of what a procedure call does.
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/data/exec_proc.h"

#include "tests/support/component_world.h"
#include "tests/support/run_in_fresh_thread.h"

namespace ferrowind {
namespace {

using platform::Date;
using platform::ParameterType;
using platform::Value;
using testing::ComponentWorld;
using testing::RunInFreshThread;
using Parameters = std::vector<std::pair<std::string, Value>>;

std::int32_t Call(const std::string& procedure, const SourceValues* params = nullptr) {
  std::shared_ptr<SourceValues> results;
  return ExecProc(procedure, params, results);
}

TEST(ExecProc, CallsTheProcedureStepByStep) {
  RunInFreshThread([] {
    ComponentWorld component;
    auto& world = component.world;
    world.dictionary->SetConnectionString("scripted:calendars");
    world.commands.Answer("CldGetMain")
        .Takes("@ID1", ParameterType::kInt32)
        .Takes("@Year1", ParameterType::kInt32)
        .Gives({"Day1"}, {{1}, {2}})
        .Gives({"Other"}, {});
    SourceValues params;
    params.Add("ID1", 978);
    params.Add("Year1", 2026);

    EXPECT_EQ(Call("CldGetMain", &params), 0);

    EXPECT_THAT(world.log.Calls(),
                ::testing::ElementsAre(
                    "command.Create()", "command.SetType(4)", R"(command.SetText("CldGetMain"))",
                    "dictionary.dic_ConnectionString()", R"(command.SetConnection("scripted:calendars"))",
                    "command.SetCursorLocation(3)", "command.RefreshParameters()",
                    R"(services.TraceMessage("Execute Procedure [CldGetMain]"))",
                    R"(command.SetParameter("@ID1", 978))", R"(services.TraceMessage("@ID1 = 978"))",
                    R"(command.SetParameter("@Year1", 2026))", R"(services.TraceMessage("@Year1 = 2026"))",
                    "command.Execute(-1)", "command.ParameterAt(0)",
                    R"(services.TraceMessage(".Parameters(0).Value = 0"))", "cursor.State()",
                    "cursor.CloneDetached(-1)", "cursor.NextRecordSet()", "cursor.CloneDetached(-1)",
                    "cursor.NextRecordSet()"));
  });
}

TEST(ExecProc, CreatesTheSharedServicesAtTheFirstTrace) {
  RunInFreshThread([] {
    headless::World world;
    const auto platform = world.Platform();
    AttachPlatform(platform);
    EnsureDictionaryObject();
    world.commands.Answer("CldAllInfo");
    world.log.Clear();
    Call("CldAllInfo");
    Call("CldAllInfo");
    EXPECT_THAT(world.log.Between("command.RefreshParameters()",
                                  R"(services.TraceMessage("Execute Procedure [CldAllInfo]"))"),
                ::testing::ElementsAre("command.RefreshParameters()",
                                       R"(objects.CreateObject("Tessaro.SharedServices"))",
                                       R"(services.TraceMessage("Execute Procedure [CldAllInfo]"))"));
    EXPECT_EQ(world.log.CountOf(R"(objects.CreateObject("Tessaro.SharedServices"))"), 1u);
  });
}

TEST(ExecProc, BindsNothingWithoutAParameterList) {
  RunInFreshThread([] {
    ComponentWorld component;
    component.world.commands.Answer("CldAllInfo").Takes("@ID1", ParameterType::kInt32);
    EXPECT_EQ(Call("CldAllInfo"), 0);
    EXPECT_TRUE(component.world.log.StartingWith("command.SetParameter").empty());
    EXPECT_EQ(component.world.services->Traces(),
              (std::vector<std::string>{"Execute Procedure [CldAllInfo]", ".Parameters(0).Value = 0"}));
  });
}

TEST(ExecProc, BindsTheValuesInOrderWithTheirTypes) {
  RunInFreshThread([] {
    ComponentWorld component;
    component.world.commands.Answer("CldIUMain")
        .Takes("@Comment", ParameterType::kText)
        .Takes("@ODate", ParameterType::kDate)
        .Takes("@Day1", ParameterType::kInt16);
    SourceValues params;
    params.Add("ODate", Date(2026, 12, 25));
    params.Add("Comment", "Christmas Day");
    params.Add("Day1", std::int16_t{359});
    Call("CldIUMain", &params);
    EXPECT_EQ(component.world.commands.Calls().at(0).parameters, (Parameters{{"@ODate", Date(2026, 12, 25)},
                                                                             {"@Comment", "Christmas Day"},
                                                                             {"@Day1", std::int16_t{359}}}));
  });
}

TEST(ExecProc, SkipsAParameterThatTheProcedureDoesNotHaveAndTracesItAllTheSame) {
  RunInFreshThread([] {
    ComponentWorld component;
    component.world.commands.Answer("CldGetMain").Takes("@Year1", ParameterType::kInt32);
    SourceValues params;
    params.Add("Unknown", 5);
    params.Add("Year1", 2026);
    EXPECT_EQ(Call("CldGetMain", &params), 0);
    EXPECT_EQ(component.world.commands.Calls().at(0).parameters, (Parameters{{"@Year1", 2026}}));
    EXPECT_TRUE(component.world.log.Contains(R"(services.TraceMessage("@Unknown = 5"))"));
    EXPECT_EQ(Module().pending_failure_count, 0);
  });
}

TEST(ExecProc, SkipsAValueThatDoesNotFitItsParameterAndGoesOn) {
  RunInFreshThread([] {
    ComponentWorld component;
    component.world.commands.Answer("CldGetMain")
        .Takes("@ID1", ParameterType::kInt32)
        .Takes("@Year1", ParameterType::kInt32);
    SourceValues params;
    params.Add("ID1", "no number");
    params.Add("Year1", 2026);
    EXPECT_EQ(Call("CldGetMain", &params), 0);
    EXPECT_EQ(component.world.commands.Calls().at(0).parameters, (Parameters{{"@Year1", 2026}}));
    EXPECT_TRUE(component.world.log.Contains(R"(services.TraceMessage("@ID1 = no number"))"));
  });
}

TEST(ExecProc, TracesAValueWithoutATextAsFarAsItCan) {
  RunInFreshThread([] {
    ComponentWorld component;
    component.world.commands.Answer("CldIUMain").Takes("@Comment", ParameterType::kText);
    SourceValues params;
    params.Add("Comment");
    params.Add("Rows", std::make_shared<platform::RecordSet>(std::vector<std::string>{"x"},
                                                             std::vector<std::vector<Value>>{}));
    EXPECT_EQ(Call("CldIUMain", &params), 0);
    EXPECT_TRUE(component.world.log.Contains(R"(services.TraceMessage("@Comment = "))"));
    EXPECT_TRUE(component.world.log.Contains(R"(services.TraceMessage("@Rows = "))"));
  });
}

TEST(ExecProc, ATraceLineOfAParameterThatFailsIsIgnored) {
  RunInFreshThread([] {
    ComponentWorld component;
    component.world.commands.Answer("CldGetMain")
        .Takes("@ID1", ParameterType::kInt32)
        .Takes("@Year1", ParameterType::kInt32);
    SourceValues params;
    params.Add("ID1", 978);
    params.Add("Year1", 2026);
    constexpr int kTraceOfTheFirstParameter = 10;
    component.world.faults.FailAtCall(kTraceOfTheFirstParameter);
    EXPECT_EQ(Call("CldGetMain", &params), 0);
    EXPECT_EQ(component.world.faults.FailedCall(), "services.TraceMessage");
    EXPECT_EQ(component.world.services->Traces(),
              (std::vector<std::string>{"Execute Procedure [CldGetMain]", "@Year1 = 2026",
                                        ".Parameters(0).Value = 0"}));
    EXPECT_EQ(component.world.commands.Calls().at(0).parameters,
              (Parameters{{"@ID1", 978}, {"@Year1", 2026}}));
  });
}

TEST(ExecProc, TracesTheReturnValueInDecimalWithoutTheProcedureName) {
  RunInFreshThread([] {
    ComponentWorld component;
    component.world.commands.Answer("CldIUMain").Returns(-17);
    EXPECT_EQ(Call("CldIUMain"), -17);
    EXPECT_EQ(component.world.services->Traces().back(), ".Parameters(0).Value = -17");
  });
}

TEST(ExecProc, MakesANewCommandAndAsksForTheConnectionAndTheParametersAtEachCall) {
  RunInFreshThread([] {
    ComponentWorld component;
    component.world.commands.Answer("CldAllInfo");
    Call("CldAllInfo");
    component.world.dictionary->SetConnectionString("scripted:second");
    Call("CldAllInfo");
    EXPECT_EQ(component.world.log.CountOf("command.Create()"), 2u);
    EXPECT_EQ(component.world.log.CountOf("command.RefreshParameters()"), 2u);
    EXPECT_EQ(component.world.commands.Calls().at(1).connection_string, "scripted:second");
  });
}

}  // namespace
}  // namespace ferrowind
