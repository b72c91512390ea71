#include "ferrowind/adapters/headless/headless_toolkit.h"

#include <gmock/gmock.h>

#include "ferrowind/adapters/headless/headless_animation.h"
#include "ferrowind/adapters/headless/headless_date_picker.h"
#include "ferrowind/adapters/headless/headless_grid.h"
#include "ferrowind/adapters/headless/world.h"

namespace ferrowind::headless {
namespace {

using platform::ControlKind;
using testing::ElementsAre;

const platform::FormDesign kDesign = {.name = "fmMain",
                                      .caption = "Main",
                                      .client_width = 3000,
                                      .client_height = 1500,
                                      .controls = {{ControlKind::kGrid, "gexRows"},
                                                   {ControlKind::kSplitter, "sssp"},
                                                   {ControlKind::kDatePicker, "dtpDay"},
                                                   {ControlKind::kAnimation, "anim"}}};

TEST(HeadlessToolkit, RecordsLocksAndWhichOfThemWereRefused) {
  World world;
  const auto form = world.toolkit.CreateForm(kDesign);
  static_cast<void>(world.toolkit.LockUpdates(form->ControlNamed("sssp")));
  EXPECT_EQ(world.toolkit.LockedElement(), "sssp");
  static_cast<void>(world.toolkit.LockUpdates(*form));
  world.toolkit.UnlockUpdates();
  EXPECT_EQ(world.toolkit.LockedElement(), "");
  EXPECT_THAT(world.log.Calls(),
              ElementsAre("toolkit.CreateForm(fmMain)", "toolkit.LockUpdates(sssp)",
                          "toolkit.LockUpdates(fmMain) refused", "toolkit.UnlockUpdates()"));
}

TEST(HeadlessToolkit, FindsTheYoungestLivingFormOfAName) {
  World world;
  const auto first = world.toolkit.CreateForm(kDesign);
  auto second = world.toolkit.CreateForm(kDesign);
  EXPECT_EQ(&world.toolkit.FormNamed("fmMain"), second.get());
  second.reset();
  EXPECT_EQ(&world.toolkit.FormNamed("fmMain"), first.get());
  EXPECT_EQ(world.toolkit.CountOfForms("fmMain"), 2U);
}

TEST(HeadlessToolkit, HasAScreenThatATestSets) {
  World world;
  world.toolkit.SetScreen(15000, 12000);
  world.toolkit.SetTwipsPerPixelX(12);
  EXPECT_EQ(world.toolkit.Screen().width, 15000);
  EXPECT_EQ(world.toolkit.Screen().height, 12000);
  EXPECT_EQ(world.toolkit.TwipsPerPixelX(), 12);
}

TEST(HeadlessToolkit, CountsBeeps) {
  World world;
  world.toolkit.Beep();
  world.toolkit.Beep();
  EXPECT_EQ(world.toolkit.BeepCount(), 2);
}

TEST(HeadlessToolkit, MakesFormsThatOutliveIt) {
  CallLog log;
  const HeadlessClock clock(platform::Date(2026, 1, 15));
  ScriptErrors errors;
  std::shared_ptr<platform::Form> form;
  {
    HeadlessToolkit toolkit(log, clock, errors);
    form = toolkit.CreateForm(kDesign);
  }
  form->Show();
  EXPECT_TRUE(form->Unload());
}

TEST(HeadlessForm, IsLargerThanItsClientAreaByItsFrame) {
  World world;
  const auto form = world.toolkit.CreateForm(kDesign);
  EXPECT_EQ(form->Width(), 3000 + HeadlessForm::kFrameWidth);
  EXPECT_EQ(form->Height(), 1500 + HeadlessForm::kFrameHeight);
  EXPECT_EQ(form->InnerHeight(), 1500);
}

TEST(HeadlessForm, TellsWhetherItIsLoadedOrUnloaded) {
  World world;
  const auto form = world.toolkit.CreateForm(kDesign);
  const HeadlessForm& headless = world.toolkit.FormNamed("fmMain");
  EXPECT_FALSE(headless.IsLoaded());
  form->Load();
  EXPECT_TRUE(headless.IsLoaded());
  EXPECT_FALSE(headless.HasUnloaded());
  form->Unload();
  EXPECT_TRUE(headless.HasUnloaded());
}

TEST(HeadlessForm, RecordsWhatIsAskedOfItBeforeItFails) {
  World world;
  const auto form = world.toolkit.CreateForm(kDesign);
  EXPECT_THROW(form->SetWidth(-1), platform::Failure);
  EXPECT_TRUE(world.log.Contains("fmMain.SetWidth(-1)"));
}

TEST(HeadlessDatePicker, ShowsTodayAtFirst) {
  World world;
  world.clock.SetToday(platform::Date(2024, 2, 29));
  const auto form = world.toolkit.CreateForm(kDesign);
  EXPECT_EQ(platform::ControlOf<HeadlessDatePicker>(*form, "dtpDay").Date(), platform::Date(2024, 2, 29));
}

TEST(HeadlessAnimation, PlaysTheFilesThatATestPutsThere) {
  World world;
  world.toolkit.AddAnimation("/component/Progress.pra");
  const auto form = world.toolkit.CreateForm(kDesign);
  auto& animation = platform::ControlOf<HeadlessAnimation>(*form, "anim");
  animation.Open("/component/Progress.pra");
  EXPECT_FALSE(animation.IsPlaying());
  animation.Play();
  EXPECT_TRUE(animation.IsPlaying());
  animation.Stop();
  EXPECT_FALSE(animation.IsPlaying());
}

TEST(HeadlessGrid, RecordsColumnsKeysAndRecordsInTheOrderOfTheCalls) {
  World world;
  const auto form = world.toolkit.CreateForm(kDesign);
  auto& grid = platform::ControlOf<HeadlessGrid>(*form, "gexRows");
  world.log.Clear();
  grid.AddColumn("Day type", 0, 1, "HolidayType").SetBoundField("TID1");
  grid.ColumnByKey("HolidayType").SetHasValueList(true);
  grid.ColumnByKey("HolidayType").ValueList()->Add(1, "Working day");
  grid.SortKeys().Add(1, 1, 0);
  grid.HoldColumns();
  grid.AttachRecords(nullptr);
  grid.Refresh(true);
  EXPECT_THAT(world.log.Calls(), ElementsAre("gexRows.AddColumn(\"Day type\", 0, 1, \"HolidayType\")",
                                             "gexRows.Columns(HolidayType).SetBoundField(\"TID1\")",
                                             "gexRows.Columns(HolidayType).SetHasValueList(True)",
                                             "gexRows.Columns(HolidayType).ValueList.Add(1, \"Working day\")",
                                             "gexRows.SortKeys.Add(1, 1, 0)", "gexRows.HoldColumns()",
                                             "gexRows.AttachRecords(none)", "gexRows.Refresh(True)"));
}

TEST(HeadlessGrid, ShowsAGroupByTheTextOfItsValue) {
  World world;
  const auto form = world.toolkit.CreateForm(kDesign);
  auto& grid = platform::ControlOf<HeadlessGrid>(*form, "gexRows");
  platform::GridColumn& type = grid.AddColumn("Day type", 0, 1, "HolidayType");
  type.SetBoundField("TID1");
  type.SetHasValueList(true);
  type.ValueList()->Add(2, "Holiday");
  grid.HoldColumns();
  grid.AttachRecords(std::make_shared<platform::RecordSet>(
      std::vector<std::string>{"TID1"}, std::vector<std::vector<platform::Value>>{{2}, {2}}));
  grid.GroupKeys().Add(1, platform::kSortAscending, 0);
  grid.Refresh(true);
  ASSERT_TRUE(grid.IsGroupRow(1));
  EXPECT_EQ(grid.CellText(1, "HolidayType"), "Holiday");
  EXPECT_EQ(grid.RowAt(1).record_count, 2U);
  EXPECT_FALSE(grid.IsGroupRow(2));
}

}  // namespace
}  // namespace ferrowind::headless
