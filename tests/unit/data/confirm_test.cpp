#include "ferrowind/data/confirm.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/headless/headless_button.h"
#include "ferrowind/adapters/headless/headless_form.h"

#include "tests/support/component_world.h"
#include "tests/support/expect_failure.h"
#include "tests/support/run_in_fresh_thread.h"

namespace ferrowind {
namespace {

using headless::HeadlessButton;
using headless::HeadlessForm;
using testing::ComponentWorld;
using testing::RunInFreshThread;

void ClickIn(ComponentWorld& component, const std::string& button) {
  component.world.toolkit.ScriptModal(
      "fmMessage", [button](HeadlessForm& form) { form.Part<HeadlessButton>(button).Click(); });
}

TEST(Confirm, MakesShowsReadsAndUnloadsTheDialogInThisOrder) {
  RunInFreshThread([] {
    ComponentWorld component;
    ClickIn(component, "cmdOk");
    EXPECT_EQ(Confirm(component.platform.toolkit, "The caption", "The message", 1), 0);
    EXPECT_THAT(
        component.world.log.Calls(),
        ::testing::ElementsAre("toolkit.CreateForm(fmMessage)", R"(lblMessage.SetText("The message"))",
                               R"(fmMessage.SetCaption("The caption"))", "cmdCancel.SetVisible(True)",
                               "fmMessage.ShowModal()", "operator.cmdOk.Click()", "fmMessage.Hide()",
                               "toolkit.ProcessPendingEvents()", "fmMessage.Unload()"));
  });
}

TEST(Confirm, ReturnsOneForCancel) {
  RunInFreshThread([] {
    ComponentWorld component;
    ClickIn(component, "cmdCancel");
    EXPECT_EQ(Confirm(component.platform.toolkit, "Caption", "Message", 1), 1);
  });
}

TEST(Confirm, StateZeroOffersOkAlone) {
  RunInFreshThread([] {
    ComponentWorld component;
    bool cancel_is_visible = true;
    component.world.toolkit.ScriptModal("fmMessage", [&](HeadlessForm& form) {
      cancel_is_visible = form.Part<HeadlessButton>("cmdCancel").Visible();
      form.Part<HeadlessButton>("cmdOk").Click();
    });
    EXPECT_EQ(Confirm(component.platform.toolkit, "Caption", "Message", 0), 0);
    EXPECT_FALSE(cancel_is_visible);
  });
}

TEST(Confirm, TakesAFreshDialogForEachQuestion) {
  RunInFreshThread([] {
    ComponentWorld component;
    ClickIn(component, "cmdCancel");
    ClickIn(component, "cmdOk");
    EXPECT_EQ(Confirm(component.platform.toolkit, "Caption", "Message", 1), 1);
    EXPECT_EQ(Confirm(component.platform.toolkit, "Caption", "Message", 1), 0);
    EXPECT_EQ(component.world.toolkit.CountOfForms("fmMessage"), 2u);
  });
}

TEST(Ask, NamesWhatItsButtonsDoAndIsLeftByEscape) {
  RunInFreshThread([] {
    ComponentWorld component;
    const Question question = {
        .caption = "Undo", .message = "Undo it?", .verb = "Undo", .cancel = "Leave it"};
    component.world.toolkit.ScriptModal("fmMessage", [](HeadlessForm& form) {
      EXPECT_EQ(form.Part<HeadlessButton>("cmdOk").Caption(), "Undo");
      EXPECT_EQ(form.Part<HeadlessButton>("cmdCancel").Caption(), "Leave it");
      form.PressEscape();
    });
    EXPECT_FALSE(Ask(component.platform.toolkit, question));
    component.world.toolkit.ScriptModal("fmMessage", [](HeadlessForm& form) { form.PressEnter(); });
    EXPECT_TRUE(Ask(component.platform.toolkit, question));
  });
}

TEST(Ask, IsCancelledByEnterWhereSomethingWouldBeLost) {
  RunInFreshThread([] {
    ComponentWorld component;
    component.world.toolkit.ScriptModal("fmMessage", [](HeadlessForm& form) { form.PressEnter(); });
    EXPECT_FALSE(Ask(component.platform.toolkit, {.caption = "Book",
                                                  .message = "Lose them?",
                                                  .verb = "Lose them",
                                                  .cancel = "Cancel",
                                                  .prefers_cancel = true}));
  });
}

TEST(Inform, IsLeftByEscape) {
  RunInFreshThread([] {
    ComponentWorld component;
    component.world.toolkit.ScriptModal("fmMessage", [](HeadlessForm& form) {
      EXPECT_FALSE(form.Part<HeadlessButton>("cmdCancel").Visible());
      form.PressEscape();
      EXPECT_FALSE(form.IsShown());
    });
    Inform(component.platform.toolkit, "Undo", "There is nothing to undo.");
  });
}

TEST(Confirm, AFormThatCannotBeMadeIsTheCallersFailure) {
  RunInFreshThread([] {
    ComponentWorld component;
    component.world.toolkit.RemoveLayout("fmMessage");
    testing::ExpectFailure(
        [&] { static_cast<void>(Confirm(component.platform.toolkit, "Caption", "Message", 1)); }, 35601);
  });
}

}  // namespace
}  // namespace ferrowind
