#include "ferrowind/views/dialogs/fm_message.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/headless/headless_button.h"
#include "ferrowind/adapters/headless/headless_form.h"
#include "ferrowind/adapters/headless/headless_label.h"

#include "tests/support/component_world.h"
#include "tests/support/run_in_fresh_thread.h"

namespace ferrowind {
namespace {

using headless::HeadlessButton;
using headless::HeadlessForm;
using headless::HeadlessLabel;
using testing::ComponentWorld;
using testing::RunInFreshThread;

struct MessageWorld : ComponentWorld {
  [[nodiscard]] HeadlessForm& Form() const { return world.toolkit.FormNamed("fmMessage"); }
  [[nodiscard]] bool CancelIsVisible() const { return Form().Part<HeadlessButton>("cmdCancel").Visible(); }
  void Show(const headless::ModalScript& play) {
    world.toolkit.ScriptModal("fmMessage", play);
    dialog.ShowModal();
  }
  fmMessage dialog{platform.toolkit};
};

void ClickOk(HeadlessForm& form) { form.Part<HeadlessButton>("cmdOk").Click(); }
void ClickCancel(HeadlessForm& form) { form.Part<HeadlessButton>("cmdCancel").Click(); }

TEST(MessageDialog, IsDesignedWithItsTextsAsAFixedDialogOverItsOwner) {
  RunInFreshThread([] {
    MessageWorld message;
    const auto& design = message.Form().Design();
    EXPECT_EQ(design.caption, "Caption");
    EXPECT_EQ(design.border, platform::FormBorder::kFixedDialog);
    EXPECT_EQ(design.start, platform::FormStart::kCenterOwner);
    EXPECT_EQ(design.client_width, 3945);
    EXPECT_EQ(design.client_height, 1320);
    EXPECT_EQ(message.Form().Part<HeadlessLabel>("lblMessage").Text(), "Message");
    EXPECT_EQ(message.Form().Part<HeadlessButton>("cmdOk").Caption(), "Ok");
    EXPECT_EQ(message.Form().Part<HeadlessButton>("cmdCancel").Caption(), "Cancel");
    for (const auto& control : design.controls) {
      EXPECT_FALSE(control.is_default_button) << control.name;
      EXPECT_FALSE(control.is_cancel_button) << control.name;
    }
  });
}

TEST(MessageDialog, ReadsZeroWhileUnanswered) {
  RunInFreshThread([] {
    MessageWorld message;
    EXPECT_EQ(message.dialog.Result(), 0);
  });
}

TEST(MessageDialog, AnsweredByOkReadsZeroAndIsOnlyHidden) {
  RunInFreshThread([] {
    MessageWorld message;
    message.Show(ClickOk);
    EXPECT_EQ(message.dialog.Result(), 0);
    EXPECT_FALSE(message.Form().IsShown());
    EXPECT_FALSE(message.Form().HasUnloaded());
  });
}

TEST(MessageDialog, AnsweredByCancelReadsOneAndIsOnlyHidden) {
  RunInFreshThread([] {
    MessageWorld message;
    message.Show(ClickCancel);
    EXPECT_EQ(message.dialog.Result(), 1);
    EXPECT_FALSE(message.Form().IsShown());
    EXPECT_FALSE(message.Form().HasUnloaded());
  });
}

TEST(MessageDialog, HidesAndThenLetsPendingEventsRun) {
  RunInFreshThread([] {
    MessageWorld message;
    message.world.log.Clear();
    message.Show(ClickCancel);
    EXPECT_THAT(message.world.log.Calls(),
                ::testing::ElementsAre("fmMessage.ShowModal()", "operator.cmdCancel.Click()",
                                       "fmMessage.Hide()", "toolkit.ProcessPendingEvents()"));
  });
}

TEST(MessageDialog, OkAfterCancelReadsZeroAgain) {
  RunInFreshThread([] {
    MessageWorld message;
    message.Show(ClickCancel);
    message.Show(ClickOk);
    EXPECT_EQ(message.dialog.Result(), 0);
  });
}

TEST(MessageDialog, UnloadsWhenItsCallerSaysSo) {
  RunInFreshThread([] {
    MessageWorld message;
    message.Show(ClickOk);
    message.dialog.Unload();
    EXPECT_TRUE(message.Form().HasUnloaded());
  });
}

TEST(MessageDialog, StateZeroHidesCancelAndStateOneShowsIt) {
  RunInFreshThread([] {
    MessageWorld message;
    message.dialog.SetState(0);
    EXPECT_FALSE(message.CancelIsVisible());
    message.dialog.SetState(1);
    EXPECT_TRUE(message.CancelIsVisible());
  });
}

TEST(MessageDialog, AnyOtherStateChangesNothing) {
  RunInFreshThread([] {
    MessageWorld message;
    for (const std::int32_t state : {2, -1, 100}) message.dialog.SetState(state);
    EXPECT_TRUE(message.CancelIsVisible());
    message.dialog.SetState(0);
    for (const std::int32_t state : {2, -1, 100}) message.dialog.SetState(state);
    EXPECT_FALSE(message.CancelIsVisible());
  });
}

TEST(MessageDialog, ShowsTheCaptionAndTheMessageOfItsCaller) {
  RunInFreshThread([] {
    MessageWorld message;
    message.dialog.SetCaption("Remove holiday");
    message.dialog.SetMessage("Remove it?");
    EXPECT_EQ(message.Form().Caption(), "Remove holiday");
    EXPECT_EQ(message.Form().Part<HeadlessLabel>("lblMessage").Text(), "Remove it?");
  });
}

TEST(MessageDialog, EnterPressesTheFocusedButtonWhichIsOkAtFirst) {
  RunInFreshThread([] {
    MessageWorld message;
    message.Show([](HeadlessForm& form) {
      EXPECT_EQ(form.FocusedControl(), "cmdOk");
      form.Part<HeadlessButton>("cmdCancel").SetFocus();
      form.PressEnter();
    });
    EXPECT_EQ(message.dialog.Result(), 1);
  });
}

TEST(MessageDialog, IsLeftNeitherByEscapeNorByItsFrame) {
  RunInFreshThread([] {
    MessageWorld message;
    message.Show([](HeadlessForm& form) {
      form.PressEscape();
      EXPECT_FALSE(form.CloseByOperator());
      EXPECT_TRUE(form.IsShown());
      ClickOk(form);
    });
  });
}

}  // namespace
}  // namespace ferrowind
