#include "tests/contract/toolkit/toolkit_contract.h"

namespace ferrowind::contract {
namespace {

using platform::Subscription;
using platform::ToolBar;
using platform::ToolKind;
using testing::ElementsAre;
using testing::IsEmpty;
namespace failure_number = platform::failure_number;

class ToolBarContract : public ToolkitContract {
 protected:
  ToolBarContract() {
    bar.AddTool({"ID_Refresh", "Refresh", "General", "Refresh all"});
    bar.AddTool({"ID_New", "New", "General", "Create new calendar"});
    bar.AddTool({"ID_ShowHide", "Show or hide", "General", "Show or hide groups", ToolKind::kTwoStateButton});
    bar.AddTool({"ID_Except", "Except", "General", "Except day"});
    bar.SetBar("ToolBar", {"ID_Refresh", "ID_New", platform::kToolSeparator, "ID_ShowHide"});
    bar.AddPopupMenu("ID_StatesMenu", "StatesMenu", {"ID_Except", platform::kToolSeparator, "ID_New"});
  }
  ToolBar& bar = The<ToolBar>("ssatbTools");
};

TEST_F(ToolBarContract, AddsToolsEnabledAndNotPressed) {
  EXPECT_TRUE(bar.ToolEnabled("ID_Refresh"));
  EXPECT_FALSE(bar.ToolPressed("ID_ShowHide"));
  EXPECT_EQ(bar.ToolDescription("ID_Refresh"), "Refresh all");
}

TEST_F(ToolBarContract, ClicksAToolByItsShortcutWhereverItStands) {
  bar.AddTool({.id = "ID_Find", .caption = "Find", .shortcut = "Ctrl+F"});
  bar.AddTool({.id = "ID_Undo", .caption = "Undo", .shortcut = "Ctrl+Shift+P"});
  bar.AddTool({.id = "ID_Year", .caption = "Year", .kind = ToolKind::kTwoStateButton, .shortcut = "F7"});
  bar.SetBar("ToolBar", {"ID_Find", "ID_Refresh"});
  bar.AddPopupMenu("ID_Other", "Other", {"ID_Undo"});
  const Subscription clicked = bar.OnToolClick(
      [&](const std::string& id) { notes.push_back(id + (bar.ToolPressed(id) ? " pressed" : "")); });
  for (const char* keys : {"Ctrl+F", "Ctrl+Shift+P", "F7", "F7"}) under_test->PressShortcut(*form, keys);
  EXPECT_THAT(notes, ElementsAre("ID_Find", "ID_Undo", "ID_Year pressed", "ID_Year"));
}

TEST_F(ToolBarContract, DoesNotClickADisabledToolByItsShortcut) {
  bar.AddTool({.id = "ID_Find", .caption = "Find", .shortcut = "Ctrl+F"});
  bar.SetToolEnabled("ID_Find", false);
  const Subscription clicked = bar.OnToolClick(NoteKey("click"));
  under_test->PressShortcut(*form, "Ctrl+F");
  EXPECT_THAT(notes, IsEmpty());
}

TEST_F(ToolBarContract, TakesANewCaptionAndDescription) {
  EXPECT_EQ(bar.ToolCaption("ID_New"), "New");
  bar.SetToolCaption("ID_New", "New & better");
  bar.SetToolDescription("ID_New", "Undo: Assigned Good Friday");
  EXPECT_EQ(bar.ToolCaption("ID_New"), "New & better");
  EXPECT_EQ(bar.ToolDescription("ID_New"), "Undo: Assigned Good Friday");
}

TEST_F(ToolBarContract, RefusesAnIdInUse) {
  ExpectFailure(failure_number::kKeyNotUnique, "ID_New", [&] { bar.AddTool({"ID_New", "x", "x", "x"}); });
  EXPECT_EQ(bar.ToolDescription("ID_New"), "Create new calendar");
}

TEST_F(ToolBarContract, NamesTheIdOfNoTool) {
  const auto expect = [&](const std::function<void()>& call) {
    ExpectFailure(failure_number::kElementNotFound, "ID_None", call);
  };
  expect([&] { bar.SetBar("ToolBar", {"ID_Refresh", "ID_None"}); });
  expect([&] { bar.AddPopupMenu("ID_Other", "Other", {"ID_None"}); });
  expect([&] { static_cast<void>(bar.ToolEnabled("ID_None")); });
  expect([&] { bar.SetToolEnabled("ID_None", true); });
  expect([&] { static_cast<void>(bar.ToolPressed("ID_None")); });
  expect([&] { bar.SetToolPressed("ID_None", true); });
  expect([&] { static_cast<void>(bar.ToolDescription("ID_None")); });
  expect([&] { static_cast<void>(bar.ToolCaption("ID_None")); });
  expect([&] { bar.SetToolCaption("ID_None", "x"); });
  expect([&] { bar.SetToolDescription("ID_None", "x"); });
  expect([&] { bar.ShowPopupMenu("ID_None"); });
}

TEST_F(ToolBarContract, KeepsItsBarWhenANewOneNamesNoTool) {
  EXPECT_THROW(bar.SetBar("ToolBar", {"ID_None"}), platform::Failure);
  const Subscription clicked = bar.OnToolClick(NoteKey("click"));
  under_test->ClickTool(bar, "ID_Refresh");
  EXPECT_THAT(notes, ElementsAre("click ID_Refresh"));
}

TEST_F(ToolBarContract, TellsWhichToolWasClicked) {
  const Subscription clicked = bar.OnToolClick(NoteKey("click"));
  under_test->ClickTool(bar, "ID_New");
  under_test->ClickTool(bar, "ID_Refresh");
  EXPECT_THAT(notes, ElementsAre("click ID_New", "click ID_Refresh"));
}

TEST_F(ToolBarContract, ChangesATwoStateButtonBeforeItTellsOfTheClick) {
  const Subscription clicked = bar.OnToolClick(
      [&](const std::string& id) { notes.push_back(id + (bar.ToolPressed(id) ? " pressed" : " released")); });
  under_test->ClickTool(bar, "ID_ShowHide");
  under_test->ClickTool(bar, "ID_ShowHide");
  EXPECT_THAT(notes, ElementsAre("ID_ShowHide pressed", "ID_ShowHide released"));
}

TEST_F(ToolBarContract, LeavesAPlainButtonReleased) {
  under_test->ClickTool(bar, "ID_New");
  EXPECT_FALSE(bar.ToolPressed("ID_New"));
}

TEST_F(ToolBarContract, TellsNothingWhenTheProgramPressesATool) {
  const Subscription clicked = bar.OnToolClick(NoteKey("click"));
  bar.SetToolPressed("ID_ShowHide", true);
  EXPECT_TRUE(bar.ToolPressed("ID_ShowHide"));
  EXPECT_THAT(notes, IsEmpty());
}

TEST_F(ToolBarContract, KeepsToolsDisabledUntilTheyAreEnabled) {
  bar.SetToolEnabled("ID_New", false);
  EXPECT_FALSE(bar.ToolEnabled("ID_New"));
  EXPECT_TRUE(bar.ToolEnabled("ID_Refresh"));
  bar.SetToolEnabled("ID_New", true);
  EXPECT_TRUE(bar.ToolEnabled("ID_New"));
}

TEST_F(ToolBarContract, TellsWhereTheMouseIs) {
  const Subscription entered = bar.OnToolEnter(NoteKey("enter"));
  const Subscription left = bar.OnToolLeave(NoteKey("leave"));
  under_test->EnterTool(bar, "ID_Refresh");
  under_test->LeaveTool(bar, "ID_Refresh");
  EXPECT_THAT(notes, ElementsAre("enter ID_Refresh", "leave ID_Refresh"));
}

TEST_F(ToolBarContract, TellsOfTheMouseOnADisabledToolAsWell) {
  bar.SetToolEnabled("ID_New", false);
  const Subscription entered = bar.OnToolEnter(NoteKey("enter"));
  under_test->EnterTool(bar, "ID_New");
  EXPECT_THAT(notes, ElementsAre("enter ID_New"));
}

TEST_F(ToolBarContract, HasToldOfAToolChosenInAMenuWhenTheMenuReturns) {
  const Subscription clicked = bar.OnToolClick(NoteKey("click"));
  under_test->ShowPopupAndChoose(bar, "ID_StatesMenu", "ID_Except");
  EXPECT_THAT(notes, ElementsAre("click ID_Except"));
}

TEST_F(ToolBarContract, OffersAToolOnTheBarAndInAMenu) {
  const Subscription clicked = bar.OnToolClick(NoteKey("click"));
  under_test->ShowPopupAndChoose(bar, "ID_StatesMenu", "ID_New");
  under_test->ClickTool(bar, "ID_New");
  EXPECT_THAT(notes, ElementsAre("click ID_New", "click ID_New"));
}

TEST_F(ToolBarContract, TellsNothingWhenAMenuIsDismissed) {
  const Subscription clicked = bar.OnToolClick(NoteKey("click"));
  under_test->ShowPopupAndChoose(bar, "ID_StatesMenu", "");
  EXPECT_THAT(notes, IsEmpty());
}

TEST_F(ToolBarContract, PutsANewBarInPlaceOfTheOldOne) {
  bar.SetBar("ToolBar", {"ID_Except"});
  const Subscription clicked = bar.OnToolClick(NoteKey("click"));
  under_test->ClickTool(bar, "ID_Except");
  EXPECT_THAT(notes, ElementsAre("click ID_Except"));
}

TEST_F(ToolBarContract, CallsNoHandlerWhoseSubscriptionWasDropped) {
  bar.OnToolClick(NoteKey("click")).Reset();
  bar.OnToolEnter(NoteKey("enter")).Reset();
  bar.OnToolLeave(NoteKey("leave")).Reset();
  under_test->EnterTool(bar, "ID_New");
  under_test->ClickTool(bar, "ID_New");
  under_test->LeaveTool(bar, "ID_New");
  EXPECT_THAT(notes, IsEmpty());
}

}  // namespace
}  // namespace ferrowind::contract
