#include "ferrowind/adapters/headless/world.h"

#include <gmock/gmock.h>

namespace ferrowind::headless {
namespace {

using platform::Dictionary;
using platform::Failure;
using platform::SharedServices;
using platform::Value;

/// Uses every operation that may fail once, on both objects, a command and a form.
void UseEverything(const platform::Platform& platform) {
  const auto dictionary =
      std::dynamic_pointer_cast<Dictionary>(platform.objects.CreateObject(platform::kDictionaryIdentifier));
  const auto services = std::dynamic_pointer_cast<SharedServices>(
      platform.objects.CreateObject(platform::kSharedServicesIdentifier));
  const auto form = platform.toolkit.CreateForm(
      {.name = "fmMain", .caption = "Main", .controls = {{platform::ControlKind::kGrid, "gexRows"}}});
  auto& grid = platform::ControlOf<platform::Grid>(*form, "gexRows");
  platform::GridColumn& column = grid.AddColumn("A", 0, 1, "A");
  static_cast<void>(services->SettingsRoot());
  static_cast<void>(services->ReadSetting("S", "N", {}, {}));
  services->WriteSetting("S", "N", 1);
  services->TraceMessage("trace");
  services->ShowMessage("message", 1, 1, 1, nullptr, "", true, true);
  services->ReportError(1, "error");
  services->SortGridByColumn(1, grid, column);
  services->SaveGridLayout(grid, "L");
  services->LoadGridLayout(grid, "L");
  services->CopyGridRows(grid, true);
  static_cast<void>(dictionary->dic_GetDicRecByFilter("Ccy", ""));
  const auto command = platform.commands.CreateCommand();
  command->SetType(platform::kStoredProcedureCommand);
  command->SetText("P");
  command->SetConnection(dictionary->dic_ConnectionString());
  command->SetCursorLocation(platform::kClientSideCursor);
  command->RefreshParameters();
  command->SetParameter("@A", 1);
  auto cursor = command->Execute(platform::kUnspecified);
  static_cast<void>(command->ParameterAt(0));
  static_cast<void>(cursor->State());
  static_cast<void>(cursor->CloneDetached(platform::kUnspecified));
  cursor = cursor->NextRecordSet();
}

void Prepare(World& world) {
  world.dictionary->SetCurrencies({{978, "EUR"}});
  world.commands.Answer("P").Takes("@A", platform::ParameterType::kInt32).Gives({"A"}, {{1}});
}

TEST(World, FailsEachCallThatMayFailInItsTurnAndNoOther) {
  constexpr int kCallsThatMayFail = 27;
  for (int call = 1; call <= kCallsThatMayFail; ++call) {
    World world;
    Prepare(world);
    world.faults.FailAtCall(call);
    try {
      UseEverything(world.Platform());
      ADD_FAILURE() << "Call " << call << " did not fail";
    } catch (const Failure& failure) {
      EXPECT_EQ(failure.Number(), FaultPlan::kFaultNumber) << failure.Description();
      EXPECT_NE(failure.Description().find(world.faults.FailedCall()), std::string::npos);
    }
    EXPECT_TRUE(world.faults.HasFired());
    EXPECT_EQ(world.faults.CallCount(), call);
  }
  World world;
  Prepare(world);
  world.faults.FailAtCall(kCallsThatMayFail + 1);
  EXPECT_NO_THROW(UseEverything(world.Platform()));
  EXPECT_FALSE(world.faults.HasFired());
  EXPECT_EQ(world.faults.CallCount(), kCallsThatMayFail);
}

TEST(World, FailsNothingOnceItsPlanIsDisarmed) {
  World world;
  Prepare(world);
  world.faults.FailAtCall(3);
  world.faults.Disarm();
  EXPECT_NO_THROW(UseEverything(world.Platform()));
}

TEST(World, RecordsWhatWasAskedOfTheObjects) {
  World world;
  Prepare(world);
  UseEverything(world.Platform());
  for (const char* call :
       {"objects.CreateObject(\"TessaroDicInProc.DictionaryClass\")", "services.SettingsRoot()",
        "services.ReadSetting(\"S\", \"N\", empty, empty)", "services.WriteSetting(\"S\", \"N\", 1)",
        "services.TraceMessage(\"trace\")",
        "services.ShowMessage(\"message\", 1, 1, 1, none, \"\", True, True)",
        "services.ReportError(1, \"error\")", "services.SortGridByColumn(1, gexRows, A)",
        "services.SaveGridLayout(gexRows, \"L\")", "services.LoadGridLayout(gexRows, \"L\")",
        "services.CopyGridRows(gexRows, True)", "dictionary.dic_ConnectionString()",
        "dictionary.dic_GetDicRecByFilter(\"Ccy\", \"\")"}) {
    EXPECT_EQ(world.log.CountOf(call), 1U) << call;
  }
}

TEST(World, CanHaveAFactoryThatFails) {
  World world;
  world.objects.RegisterFailing(platform::kDictionaryIdentifier, Failure(429, "No such class"));
  EXPECT_THROW(static_cast<void>(world.objects.CreateObject(platform::kDictionaryIdentifier)), Failure);
  world.objects.Unregister(platform::kSharedServicesIdentifier);
  EXPECT_THROW(static_cast<void>(world.objects.CreateObject(platform::kSharedServicesIdentifier)), Failure);
}

TEST(World, CanRunOnAMemoryDatabase) {
  World world;
  const platform::Platform platform = world.PlatformOnMemory();
  const auto command = platform.commands.CreateCommand();
  command->SetType(platform::kStoredProcedureCommand);
  command->SetText("CldIUMain");
  command->SetConnection(world.dictionary->dic_ConnectionString());
  command->RefreshParameters();
  command->SetParameter("@ID1", 978);
  command->SetParameter("@Year1", 2026);
  EXPECT_EQ(command->Execute(platform::kUnspecified), nullptr);
  EXPECT_EQ(command->ParameterAt(0), Value(0));
  EXPECT_EQ(world.database->Tables().calendars.at({978, 2026}).size(), 365U);
  EXPECT_EQ(world.dictionary->dic_GetDicRecByFilter("Ccy", "CcyType = 0")->RowCount(), 5U);
}

}  // namespace
}  // namespace ferrowind::headless
