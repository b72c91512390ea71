// What a scripted operator can do, and what a test is told when he cannot.
#include <gmock/gmock.h>

#include "ferrowind/adapters/headless/headless_button.h"
#include "ferrowind/adapters/headless/headless_date_picker.h"
#include "ferrowind/adapters/headless/headless_drop_down_list.h"
#include "ferrowind/adapters/headless/headless_grid.h"
#include "ferrowind/adapters/headless/headless_text_box.h"
#include "ferrowind/adapters/headless/headless_tool_bar.h"
#include "ferrowind/adapters/headless/headless_tree.h"
#include "ferrowind/adapters/headless/world.h"

namespace ferrowind::headless {
namespace {

using platform::ControlKind;
using platform::Subscription;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class HeadlessOperator : public testing::Test {
 protected:
  HeadlessOperator() {
    world.script_errors.SetListener([this](const std::string& text) { told = text; });
    world.toolkit.PlaceInside("fmMain", "frmFields", {"txtName"});
    form = world.toolkit.CreateForm({.name = "fmMain",
                                     .caption = "Main",
                                     .client_width = 3000,
                                     .client_height = 1500,
                                     .controls = {{ControlKind::kButton, "cmdOk", "Ok"},
                                                  {ControlKind::kTextBox, "txtName"},
                                                  {ControlKind::kFrame, "frmFields"},
                                                  {ControlKind::kDropDownList, "cmbType"},
                                                  {ControlKind::kDatePicker, "dtpDay"},
                                                  {ControlKind::kTree, "tvNodes"},
                                                  {ControlKind::kGrid, "gexRows"},
                                                  {ControlKind::kToolBar, "ssatb"}}});
  }
  template <typename Kind>
  [[nodiscard]] Kind& Part(const std::string& name) {
    return world.toolkit.FormNamed("fmMain").Part<Kind>(name);
  }
  void ExpectScriptError(const std::string& text, const std::function<void()>& act) {
    told.clear();
    EXPECT_THROW(act(), ScriptError);
    EXPECT_THAT(told, HasSubstr(text));
  }

  std::string told;
  World world;
  std::shared_ptr<platform::Form> form;
};

TEST_F(HeadlessOperator, CannotUseAFormThatIsNotShown) {
  ExpectScriptError("fmMain is not shown", [&] { Part<HeadlessButton>("cmdOk").Click(); });
}

TEST_F(HeadlessOperator, CannotUseWhatIsDisabledHiddenOrInADisabledFrame) {
  form->Show();
  Part<HeadlessButton>("cmdOk").SetEnabled(false);
  ExpectScriptError("cmdOk.Click()", [&] { Part<HeadlessButton>("cmdOk").Click(); });
  Part<HeadlessButton>("cmdOk").SetEnabled(true);
  Part<HeadlessButton>("cmdOk").SetVisible(false);
  ExpectScriptError("cmdOk.Click()", [&] { Part<HeadlessButton>("cmdOk").Click(); });
  form->ControlNamed("frmFields").SetEnabled(false);
  ExpectScriptError("txtName.TypeText", [&] { Part<HeadlessTextBox>("txtName").TypeText("x"); });
}

TEST_F(HeadlessOperator, CannotUseAFormBehindAModalOne) {
  form->Show();
  const auto dialog = world.toolkit.CreateForm({.name = "fmMessage", .caption = "Message"});
  world.toolkit.ScriptModal("fmMessage", [&](HeadlessForm& shown) {
    ExpectScriptError("fmMessage is in front", [&] { Part<HeadlessButton>("cmdOk").Click(); });
    shown.Hide();
  });
  dialog->ShowModal();
  EXPECT_NO_THROW(Part<HeadlessButton>("cmdOk").Click());
}

TEST_F(HeadlessOperator, CannotChooseWhatIsNotOffered) {
  form->Show();
  ExpectScriptError("no item Sunday",
                    [&] { Part<HeadlessDropDownList>("cmbType").ChooseByOperator("Sunday"); });
  ExpectScriptError("no node K1", [&] { Part<HeadlessTree>("tvNodes").ClickNode("K1"); });
  ExpectScriptError("no row 1", [&] { Part<HeadlessGrid>("gexRows").ClickRow(1); });
  ExpectScriptError("no group key 1", [&] { Part<HeadlessGrid>("gexRows").DragGroupAway(1); });
  auto& tools = Part<HeadlessToolBar>("ssatb");
  tools.AddTool({"ID_New", "New", "General", "New"});
  ExpectScriptError("it is not in", [&] { tools.ClickTool("ID_New"); });
  tools.SetBar("ToolBar", {"ID_New"});
  tools.SetToolEnabled("ID_New", false);
  ExpectScriptError("it is disabled", [&] { tools.ClickTool("ID_New"); });
}

TEST_F(HeadlessOperator, CannotClickANodeThatACollapsedParentHides) {
  form->Show();
  auto& tree = Part<HeadlessTree>("tvNodes");
  tree.AddRoot({"K1", "EUR", "Currency"});
  tree.AddChild("K1", {"K1_2026", "2026", "Calendar"});
  ExpectScriptError("the node K1 is collapsed", [&] { tree.ClickNode("K1_2026"); });
  tree.ToggleNode("K1");
  EXPECT_NO_THROW(tree.ClickNode("K1_2026"));
  EXPECT_EQ(tree.Image("K1"), "Currency");
}

TEST_F(HeadlessOperator, CannotDragAColumnThatIsNotGroupable) {
  form->Show();
  auto& grid = Part<HeadlessGrid>("gexRows");
  static_cast<void>(grid.AddColumn("Type", 0, 1, "Type"));
  grid.SetGroupByBoxVisible(true);
  ExpectScriptError("cannot be grouped by Type", [&] { grid.DragHeaderToGroups("Type"); });
  grid.ColumnByKey("Type").SetGroupable(1);
  EXPECT_NO_THROW(grid.DragHeaderToGroups("Type"));
}

TEST_F(HeadlessOperator, CanReplaceOrDeleteTheTextOfABox) {
  form->Show();
  auto& box = Part<HeadlessTextBox>("txtName");
  box.SetText("old");
  box.ReplaceText("new");
  EXPECT_EQ(box.Text(), "new");
  box.ReplaceText("");
  EXPECT_EQ(box.Text(), "");
}

TEST_F(HeadlessOperator, IsRecordedBeforeWhatHeCauses) {
  form->Show();
  const Subscription clicked = Part<HeadlessButton>("cmdOk").OnClick([&] { form->SetCaption("Clicked"); });
  const std::size_t mark = world.log.Size();
  Part<HeadlessButton>("cmdOk").Click();
  EXPECT_THAT(world.log.Since(mark), ElementsAre("operator.cmdOk.Click()", "fmMain.SetCaption(\"Clicked\")"));
}

TEST_F(HeadlessOperator, HasTheFirstUsableControlInFocus) {
  Part<HeadlessButton>("cmdOk").SetEnabled(false);
  form->Show();
  EXPECT_EQ(world.toolkit.FormNamed("fmMain").FocusedControl(), "txtName");
}

TEST_F(HeadlessOperator, DismissesAMenuThatNoChoiceWaitsFor) {
  form->Show();
  auto& tools = Part<HeadlessToolBar>("ssatb");
  tools.AddTool({"ID_Except", "Except", "General", "Except"});
  tools.AddPopupMenu("ID_StatesMenu", "StatesMenu", {"ID_Except"});
  std::vector<std::string> clicks;
  const Subscription clicked = tools.OnToolClick([&](const std::string& id) { clicks.push_back(id); });
  tools.ShowPopupMenu("ID_StatesMenu");
  EXPECT_THAT(clicks, IsEmpty());
  tools.ChooseFromNextPopup("ID_Except");
  tools.ShowPopupMenu("ID_StatesMenu");
  EXPECT_THAT(clicks, ElementsAre("ID_Except"));
}

TEST_F(HeadlessOperator, IsToldThatAModalFormHasNoScript) {
  const auto dialog = world.toolkit.CreateForm({.name = "fmMessage", .caption = "Message"});
  ExpectScriptError("fmMessage was shown modally, but the test has no script", [&] { dialog->ShowModal(); });
  EXPECT_FALSE(dialog->IsShown());
}

TEST_F(HeadlessOperator, IsToldThatAScriptLeftAModalFormOpen) {
  const auto dialog = world.toolkit.CreateForm({.name = "fmMessage", .caption = "Message"});
  world.toolkit.ScriptModal("fmMessage", [](HeadlessForm&) {});
  ExpectScriptError("fmMessage ended and left the form open", [&] { dialog->ShowModal(); });
  EXPECT_FALSE(dialog->IsShown());
}

TEST_F(HeadlessOperator, PlaysTheScriptsOfAFormInTheirOrder) {
  std::vector<std::string> played;
  for (const char* script : {"first", "second"}) {
    world.toolkit.ScriptModal("fmMain", [&played, script](HeadlessForm& shown) {
      played.emplace_back(script);
      shown.Hide();
    });
  }
  EXPECT_EQ(world.toolkit.WaitingScripts(), 2U);
  form->ShowModal();
  form->ShowModal();
  EXPECT_THAT(played, ElementsAre("first", "second"));
  EXPECT_EQ(world.toolkit.WaitingScripts(), 0U);
}

TEST_F(HeadlessOperator, LeavesTheFormBehindUsableAfterAFailingScript) {
  form->Show();
  const auto dialog = world.toolkit.CreateForm({.name = "fmMessage", .caption = "Message"});
  world.toolkit.ScriptModal("fmMessage", [](HeadlessForm&) { throw platform::Overflow(); });
  EXPECT_THROW(dialog->ShowModal(), platform::Failure);
  EXPECT_NO_THROW(Part<HeadlessButton>("cmdOk").Click());
}

TEST(ScriptErrors, AreKeptUntilTheyAreTaken) {
  ScriptErrors errors;
  EXPECT_THROW(errors.Raise("one"), ScriptError);
  EXPECT_THROW(errors.Raise("two"), ScriptError);
  EXPECT_THAT(errors.Take(), ElementsAre("one", "two"));
  EXPECT_THAT(errors.Take(), IsEmpty());
}

TEST(ScriptErrorsDeathTest, EndTheProgramWhenNobodyTakesThem) {
  EXPECT_DEATH(
      {
        ScriptErrors errors;
        try {
          errors.Raise("swallowed by a handler");
        } catch (const ScriptError&) {
        }
      },
      "swallowed by a handler");
}

}  // namespace
}  // namespace ferrowind::headless
