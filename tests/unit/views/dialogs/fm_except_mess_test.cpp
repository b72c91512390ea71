#include "ferrowind/views/dialogs/fm_except_mess.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/headless/headless_button.h"
#include "ferrowind/adapters/headless/headless_form.h"
#include "ferrowind/adapters/headless/headless_label.h"
#include "ferrowind/adapters/headless/headless_text_box.h"

#include "tests/support/component_world.h"
#include "tests/support/run_in_fresh_thread.h"

namespace ferrowind {
namespace {

using headless::HeadlessButton;
using headless::HeadlessForm;
using headless::HeadlessTextBox;
using testing::ComponentWorld;
using testing::RunInFreshThread;

struct ExceptWorld : ComponentWorld {
  [[nodiscard]] HeadlessForm& Form() const { return world.toolkit.FormNamed("fmExceptMess"); }
  void Show(const headless::ModalScript& play) {
    world.toolkit.ScriptModal("fmExceptMess", play);
    dialog.ShowModal();
  }
  /// The operator types a text and clicks a button.
  void Answer(const std::string& text, const std::string& button) {
    Show([&](HeadlessForm& form) {
      if (!text.empty()) form.Part<HeadlessTextBox>("txtMessage").TypeText(text);
      form.Part<HeadlessButton>(button).Click();
    });
  }
  fmExceptMess dialog{platform.toolkit};
};

TEST(ExceptDialog, IsDesignedWithItsTextsAsAFixedDialogOverItsOwner) {
  RunInFreshThread([] {
    ExceptWorld except;
    const auto& design = except.Form().Design();
    EXPECT_EQ(design.caption, "Except with message");
    EXPECT_EQ(design.border, platform::FormBorder::kFixedDialog);
    EXPECT_EQ(design.start, platform::FormStart::kCenterOwner);
    EXPECT_EQ(design.client_width, 3660);
    EXPECT_EQ(design.client_height, 1425);
    EXPECT_EQ(except.Form().Part<headless::HeadlessLabel>("lblMessage").Text(), "Description");
    EXPECT_EQ(except.Form().Part<HeadlessTextBox>("txtMessage").Text(), "");
    EXPECT_EQ(except.Form().Part<HeadlessButton>("cmdExcept").Caption(), "Except");
    EXPECT_EQ(except.Form().Part<HeadlessButton>("cmdCancel").Caption(), "Cancel");
  });
}

TEST(ExceptDialog, ReadsZeroAndNoMessageWhileUnanswered) {
  RunInFreshThread([] {
    ExceptWorld except;
    EXPECT_EQ(except.dialog.Result(), 0);
    EXPECT_EQ(except.dialog.Message(), "");
  });
}

TEST(ExceptDialog, ExceptTakesTheTextWithoutOuterBlanks) {
  RunInFreshThread([] {
    ExceptWorld except;
    except.Answer("  Year-end  processing  ", "cmdExcept");
    EXPECT_EQ(except.dialog.Result(), 0);
    EXPECT_EQ(except.dialog.Message(), "Year-end  processing");
  });
}

TEST(ExceptDialog, ExceptTakesAnEmptyTextAndOneOfBlanksAsEmpty) {
  for (const char* text : {"", "    "}) {
    RunInFreshThread([text] {
      ExceptWorld except;
      except.Answer(text, "cmdExcept");
      EXPECT_EQ(except.dialog.Result(), 0);
      EXPECT_EQ(except.dialog.Message(), "");
    });
  }
}

TEST(ExceptDialog, HasNoLimitForItsText) {
  RunInFreshThread([] {
    ExceptWorld except;
    const std::string text(20000, 'x');
    except.Answer(text, "cmdExcept");
    EXPECT_EQ(except.dialog.Message(), text);
  });
}

TEST(ExceptDialog, CancelReadsOneAndDoesNotTakeTheText) {
  RunInFreshThread([] {
    ExceptWorld except;
    except.Answer("typed", "cmdCancel");
    EXPECT_EQ(except.dialog.Result(), 1);
    EXPECT_EQ(except.dialog.Message(), "");
  });
}

TEST(ExceptDialog, ItsButtonsHideItLetPendingEventsRunAndUnloadIt) {
  for (const char* button : {"cmdExcept", "cmdCancel"}) {
    RunInFreshThread([button] {
      ExceptWorld except;
      except.world.log.Clear();
      except.Answer("", button);
      EXPECT_THAT(except.world.log.Calls(),
                  ::testing::ElementsAre(
                      "fmExceptMess.ShowModal()", std::string("operator.") + button + ".Click()",
                      "fmExceptMess.Hide()", "toolkit.ProcessPendingEvents()", "fmExceptMess.Unload()"));
      EXPECT_TRUE(except.Form().HasUnloaded());
    });
  }
}

TEST(ExceptDialog, StartsInTheTextBoxWhereEnterIsExcept) {
  RunInFreshThread([] {
    ExceptWorld except;
    except.Show([](HeadlessForm& form) {
      EXPECT_EQ(form.FocusedControl(), "txtMessage");
      form.Part<HeadlessTextBox>("txtMessage").TypeText("by key");
      form.PressEnter();
    });
    EXPECT_EQ(except.dialog.Result(), 0);
    EXPECT_EQ(except.dialog.Message(), "by key");
  });
}

TEST(ExceptDialog, EscapeIsCancel) {
  RunInFreshThread([] {
    ExceptWorld except;
    except.Show([](HeadlessForm& form) {
      form.Part<HeadlessTextBox>("txtMessage").TypeText("typed");
      form.PressEscape();
    });
    EXPECT_EQ(except.dialog.Result(), 1);
    EXPECT_EQ(except.dialog.Message(), "");
    EXPECT_TRUE(except.Form().HasUnloaded());
  });
}

TEST(ExceptDialog, ItsFrameDoesNotCloseIt) {
  RunInFreshThread([] {
    ExceptWorld except;
    except.Show([](HeadlessForm& form) {
      EXPECT_FALSE(form.CloseByOperator());
      form.PressEscape();
    });
  });
}

}  // namespace
}  // namespace ferrowind
