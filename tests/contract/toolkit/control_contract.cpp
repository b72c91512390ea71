#include "tests/contract/toolkit/toolkit_contract.h"

namespace ferrowind::contract {
namespace {

using platform::Button;
using platform::Subscription;
using platform::TextBox;
using testing::ElementsAre;
using testing::IsEmpty;
namespace failure_number = platform::failure_number;

class ControlContract : public ToolkitContract {};

TEST_F(ControlContract, IsEnabledAndVisibleAtFirst) {
  for (const char* name : {"txtText", "cmdPush", "gexRows", "tvNodes", "fraBox"}) {
    EXPECT_TRUE(form->ControlNamed(name).Enabled()) << name;
    EXPECT_TRUE(form->ControlNamed(name).Visible()) << name;
  }
}

TEST_F(ControlContract, CanBeDisabledAndHidden) {
  platform::Control& control = form->ControlNamed("txtText");
  control.SetEnabled(false);
  control.SetVisible(false);
  EXPECT_FALSE(control.Enabled());
  EXPECT_FALSE(control.Visible());
  control.SetEnabled(true);
  control.SetVisible(true);
  EXPECT_TRUE(control.Enabled());
  EXPECT_TRUE(control.Visible());
}

TEST_F(ControlContract, KeepsItsOwnStateInADisabledFrame) {
  form->ControlNamed("fraBox").SetEnabled(false);
  EXPECT_TRUE(form->ControlNamed("txtInside").Enabled());
  form->ControlNamed("txtInside").SetEnabled(false);
  form->ControlNamed("fraBox").SetEnabled(true);
  EXPECT_FALSE(form->ControlNamed("txtInside").Enabled());
}

TEST_F(ControlContract, TellsItsOwnVisibilityWhileItsFormIsHidden) {
  form->Hide();
  EXPECT_TRUE(form->ControlNamed("txtText").Visible());
  form->ControlNamed("txtText").SetVisible(false);
  EXPECT_FALSE(form->ControlNamed("txtText").Visible());
}

TEST_F(ControlContract, RefusesANegativeHeight) {
  platform::Control& splitter = form->ControlNamed("sssp");
  const float height = splitter.Height();
  ExpectFailure(failure_number::kInvalidArgument, "", [&] { splitter.SetHeight(-15); });
  EXPECT_EQ(splitter.Height(), height);
  EXPECT_NO_THROW(splitter.SetHeight(3000));
}

TEST_F(ControlContract, LosesTheFocusToAnotherThatTakesIt) {
  const Subscription lost = The<TextBox>("txtText").OnLostFocus(Note("lost"));
  The<TextBox>("txtText").SetFocus();
  toolkit.ProcessPendingEvents();
  EXPECT_THAT(notes, IsEmpty());
  The<TextBox>("txtOther").SetFocus();
  toolkit.ProcessPendingEvents();
  EXPECT_THAT(notes, ElementsAre("lost"));
}

TEST_F(ControlContract, DoesNotTakeTheFocusWhileItIsHiddenOrDisabled) {
  The<TextBox>("txtText").SetFocus();
  const Subscription lost = The<TextBox>("txtText").OnLostFocus(Note("lost"));
  The<TextBox>("txtOther").SetEnabled(false);
  The<TextBox>("txtOther").SetFocus();
  The<TextBox>("txtOther").SetEnabled(true);
  The<TextBox>("txtOther").SetVisible(false);
  The<TextBox>("txtOther").SetFocus();
  form->ControlNamed("fraBox").SetEnabled(false);
  The<TextBox>("txtInside").SetFocus();
  toolkit.ProcessPendingEvents();
  EXPECT_THAT(notes, IsEmpty());
}

class ButtonContract : public ToolkitContract {};

TEST_F(ButtonContract, RaisesAClick) {
  const Subscription clicked = The<Button>("cmdPush").OnClick(Note("click"));
  under_test->Click(The<Button>("cmdPush"));
  EXPECT_THAT(notes, ElementsAre("click"));
}

TEST_F(ButtonContract, CallsItsHandlersInTheOrderOfTheirSubscription) {
  const Subscription first = The<Button>("cmdPush").OnClick(Note("first"));
  const Subscription second = The<Button>("cmdPush").OnClick(Note("second"));
  under_test->Click(The<Button>("cmdPush"));
  EXPECT_THAT(notes, ElementsAre("first", "second"));
}

TEST_F(ButtonContract, CallsNoHandlerWhoseSubscriptionWasDropped) {
  Subscription clicked = The<Button>("cmdPush").OnClick(Note("click"));
  clicked.Reset();
  under_test->Click(The<Button>("cmdPush"));
  EXPECT_THAT(notes, IsEmpty());
}

TEST_F(ButtonContract, CannotBeClickedWhileItIsDisabled) {
  const Subscription clicked = The<Button>("cmdPush").OnClick(Note("click"));
  The<Button>("cmdPush").SetEnabled(false);
  under_test->Click(The<Button>("cmdPush"));
  EXPECT_THAT(notes, IsEmpty());
}

TEST_F(ButtonContract, TakesTheFocusFromATextBoxWhenClicked) {
  The<TextBox>("txtText").SetFocus();
  const Subscription lost = The<TextBox>("txtText").OnLostFocus(Note("lost"));
  const Subscription clicked = The<Button>("cmdPush").OnClick(Note("click"));
  under_test->Click(The<Button>("cmdPush"));
  EXPECT_THAT(notes, ElementsAre("lost", "click"));
}

TEST_F(ButtonContract, MayDropItsFormInItsHandler) {
  Subscription clicked = The<Button>("cmdPush").OnClick([&] {
    notes.push_back("click");
    form.reset();
  });
  under_test->Click(The<Button>("cmdPush"));
  toolkit.ProcessPendingEvents();
  EXPECT_THAT(notes, ElementsAre("click"));
}

TEST_F(ButtonContract, TakesANewCaptionAsItIs) {
  The<Button>("cmdPush").SetCaption("Save & close");
  EXPECT_EQ(The<Button>("cmdPush").Caption(), "Save & close");
}

TEST_F(ButtonContract, TakesADescriptionBesideItsCaption) {
  The<Button>("cmdPush").SetDescription("Does <b>all</b> of it");
  EXPECT_EQ(The<Button>("cmdPush").Caption(), "Push");
}

class TextViewContract : public ToolkitContract {};

TEST_F(TextViewContract, ShowsTextsOfManyLinesAsTheyAre) {
  auto& view = The<platform::TextView>("txtView");
  EXPECT_EQ(view.Text(), "Two\nlines");
  for (const char* text : {"<b>not bold</b>", "a\n\nb\n", "  a  ", ""}) {
    view.SetText(text);
    EXPECT_EQ(view.Text(), text);
  }
}

class LabelContract : public ToolkitContract {};

TEST_F(LabelContract, ShowsTextAsItIs) {
  for (const char* text : {"<b>not bold</b>", "Tom & Jerry", "two\nlines", ""}) {
    The<platform::Label>("lblText").SetText(text);
    EXPECT_EQ(The<platform::Label>("lblText").Text(), text);
  }
}

TEST_F(LabelContract, AnAnnouncementChangesNothingThatIsSeen) {
  auto& label = The<platform::Label>("lblText");
  label.SetText("Tom & Jerry");
  for (const bool is_visible : {true, false}) {
    label.SetVisible(is_visible);
    label.Announce();
    EXPECT_EQ(label.Text(), "Tom & Jerry");
    EXPECT_EQ(label.Visible(), is_visible);
  }
}

class StatusBarContract : public ToolkitContract {};

TEST_F(StatusBarContract, KeepsTheTextOfItsPanel) {
  auto& status_bar = The<platform::StatusBar>("sbLine");
  EXPECT_EQ(status_bar.PanelText(1), "");
  status_bar.SetPanelText(1, "Refresh all");
  EXPECT_EQ(status_bar.PanelText(1), "Refresh all");
  status_bar.SetPanelText(1, "");
  EXPECT_EQ(status_bar.PanelText(1), "");
}

TEST_F(StatusBarContract, HasNoOtherPanel) {
  auto& status_bar = The<platform::StatusBar>("sbLine");
  for (const int panel : {0, -1, 2}) {
    ExpectFailure(failure_number::kSubscriptOutOfRange, "", [&] { status_bar.SetPanelText(panel, "x"); });
    ExpectFailure(failure_number::kSubscriptOutOfRange, "",
                  [&] { static_cast<void>(status_bar.PanelText(panel)); });
  }
}

class AnimationContract : public ToolkitContract {};

TEST_F(AnimationContract, NamesAFileThatIsNotThere) {
  try {
    The<platform::Animation>("anim").Open("/nowhere/Progress.pra");
    ADD_FAILURE() << "A missing file was opened";
  } catch (const platform::Failure& failure) {
    EXPECT_NE(failure.Description().find("/nowhere/Progress.pra"), std::string::npos)
        << failure.Description();
  }
}

TEST_F(AnimationContract, CannotPlayWithoutAnImage) {
  EXPECT_THROW(The<platform::Animation>("anim").Play(), platform::Failure);
}

TEST_F(AnimationContract, PlaysAndStops) {
  auto& animation = The<platform::Animation>("anim");
  animation.Open(under_test->AnimatedImage());
  EXPECT_NO_THROW(animation.Play());
  EXPECT_NO_THROW(animation.Stop());
  EXPECT_NO_THROW(animation.Stop());
  EXPECT_NO_THROW(animation.Play());
}

class ScreenContract : public ToolkitContract {};

TEST_F(ScreenContract, HasASizeAndAResolution) {
  EXPECT_GT(toolkit.Screen().width, 0);
  EXPECT_GT(toolkit.Screen().height, 0);
  EXPECT_GT(toolkit.TwipsPerPixelX(), 0);
}

TEST_F(ScreenContract, CanSoundABeepAndHandleWhatWaits) {
  EXPECT_NO_THROW(toolkit.Beep());
  EXPECT_NO_THROW(toolkit.ProcessPendingEvents());
}

class FileQuestionContract : public ToolkitContract {};

TEST_F(FileQuestionContract, GivesTheFileOfTheOperatorsChoice) {
  EXPECT_EQ(under_test->AskForFile("year.png"), "year.png");
}

TEST_F(FileQuestionContract, AddsTheSuffixOfTheKindToANameWithoutOne) {
  EXPECT_EQ(under_test->AskForFile("year"), "year.pdf");
}

TEST_F(FileQuestionContract, GivesNothingWhenItIsTurnedDown) {
  EXPECT_EQ(under_test->AskForFile(std::nullopt), std::nullopt);
}

TEST_F(FileQuestionContract, GivesTheFileThatIsToBeRead) {
  EXPECT_EQ(under_test->AskForFileToRead("days.ics"), "days.ics");
}

TEST_F(FileQuestionContract, GivesNoFileThatIsNotThere) {
  EXPECT_EQ(under_test->AskForFileToRead("nights.ics"), std::nullopt);
}

TEST_F(FileQuestionContract, GivesNoFileToReadWhenItIsTurnedDown) {
  EXPECT_EQ(under_test->AskForFileToRead(std::nullopt), std::nullopt);
}

class ClipboardContract : public ToolkitContract {};

TEST_F(ClipboardContract, TakesATextAsItIs) {
  toolkit.SetClipboardText("a\tb\nJos\xC3\xA9 <b>");
  EXPECT_EQ(under_test->ClipboardText(), "a\tb\nJos\xC3\xA9 <b>");
}

}  // namespace
}  // namespace ferrowind::contract
