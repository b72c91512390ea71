#include "tests/contract/toolkit/toolkit_contract.h"

namespace ferrowind::contract {
namespace {

using platform::Date;
using platform::DatePicker;
using platform::DropDownList;
using platform::Subscription;
using platform::TextBox;
using platform::UpDown;
using testing::ElementsAre;
using testing::IsEmpty;
namespace failure_number = platform::failure_number;

class TextBoxContract : public ToolkitContract {
 protected:
  TextBox& box = The<TextBox>("txtText");
};

TEST_F(TextBoxContract, TellsOfATextThatTheProgramSets) {
  const Subscription changed = box.OnChange([&] { notes.push_back(box.Text()); });
  box.SetText("2026");
  EXPECT_THAT(notes, ElementsAre("2026"));
}

TEST_F(TextBoxContract, TellsNothingWhenTheSameTextIsSetAgain) {
  box.SetText("2026");
  const Subscription changed = box.OnChange(Note("change"));
  box.SetText("2026");
  EXPECT_THAT(notes, IsEmpty());
}

TEST_F(TextBoxContract, TellsOfEveryCharacterTyped) {
  box.SetText("");
  const Subscription changed = box.OnChange([&] { notes.push_back(box.Text()); });
  under_test->TypeText(box, "ab");
  EXPECT_THAT(notes, ElementsAre("a", "ab"));
}

TEST_F(TextBoxContract, TakesTypedTextInPlaceOfTheSelection) {
  box.SetText("1999");
  box.SetFocus();
  box.SelectAll();
  under_test->TypeText(box, "7");
  EXPECT_EQ(box.Text(), "7");
}

TEST_F(TextBoxContract, TakesNoMoreCharactersThanItsLimit) {
  box.SetText("");
  box.SetMaxLength(4);
  under_test->TypeText(box, "20267");
  EXPECT_EQ(box.Text(), "2026");
}

TEST_F(TextBoxContract, CountsCharactersNotBytes) {
  box.SetText("");
  box.SetMaxLength(2);
  under_test->TypeText(box, "\xC3\xA4\xC3\xB6\xC3\xBC");
  EXPECT_EQ(box.Text(), "\xC3\xA4\xC3\xB6");
}

TEST_F(TextBoxContract, HasNoLimitAtZero) {
  box.SetText("");
  box.SetMaxLength(2);
  box.SetMaxLength(0);
  under_test->TypeText(box, "many characters");
  EXPECT_EQ(box.Text(), "many characters");
}

TEST_F(TextBoxContract, KeepsOuterBlanks) {
  box.SetText("  a  ");
  EXPECT_EQ(box.Text(), "  a  ");
}

TEST_F(TextBoxContract, LetsAHandlerSetItsTextAgain) {
  const Subscription changed = box.OnChange([&] {
    notes.push_back(box.Text());
    box.SetText("settled");
  });
  box.SetText("moving");
  EXPECT_EQ(box.Text(), "settled");
  EXPECT_THAT(notes, ElementsAre("moving", "settled"));
}

TEST_F(TextBoxContract, KeepsItsTextBesideAPlaceholder) {
  box.SetPlaceholder("Name or date");
  EXPECT_EQ(box.Text(), "First text");
  box.SetText("");
  EXPECT_EQ(box.Text(), "");
}

TEST_F(TextBoxContract, TellsOfEnterInPlaceOfTheDefaultButton) {
  const auto dialog = toolkit.CreateForm(ContractFixedDialog());
  dialog->Show();
  auto& text = platform::ControlOf<TextBox>(*dialog, "txtText");
  const Subscription pressed = platform::ControlOf<platform::Button>(*dialog, "cmdOk").OnClick(Note("ok"));
  text.SetFocus();
  under_test->PressEnter(*dialog);
  const Subscription entered = text.OnEnter([&] { notes.push_back("enter " + text.Text()); });
  under_test->TypeText(text, "abc");
  under_test->PressEnter(*dialog);
  EXPECT_THAT(notes, ElementsAre("ok", "enter abc"));
}

TEST_F(TextBoxContract, LeavesEnterAloneInAWindowWithoutADefaultButton) {
  const Subscription pressed = The<platform::Button>("cmdPush").OnClick(Note("push"));
  box.SetFocus();
  under_test->PressEnter(*form);
  EXPECT_THAT(notes, IsEmpty());
}

TEST_F(TextBoxContract, CallsNoHandlerWhoseSubscriptionWasDropped) {
  Subscription changed = box.OnChange(Note("change"));
  Subscription lost = box.OnLostFocus(Note("lost"));
  changed.Reset();
  lost.Reset();
  box.SetText("anything");
  box.SetFocus();
  The<TextBox>("txtOther").SetFocus();
  toolkit.ProcessPendingEvents();
  EXPECT_THAT(notes, IsEmpty());
}

class DropDownListContract : public ToolkitContract {
 protected:
  DropDownListContract() {
    list.AddItem("Monday", 2);
    list.AddItem("Tuesday", 3);
  }
  DropDownList& list = The<DropDownList>("cmbList");
};

TEST_F(DropDownListContract, HasNothingChosenAtFirst) {
  EXPECT_EQ(list.Count(), 2);
  EXPECT_EQ(list.Chosen(), -1);
}

TEST_F(DropDownListContract, KeepsTextAndNumberOfItsItems) {
  EXPECT_EQ(list.ItemText(0), "Monday");
  EXPECT_EQ(list.ItemText(1), "Tuesday");
  EXPECT_EQ(list.ItemData(0), 2);
  EXPECT_EQ(list.ItemData(1), 3);
}

TEST_F(DropDownListContract, KeepsItemsOfTheSameText) {
  list.AddItem("Monday", 9);
  EXPECT_EQ(list.Count(), 3);
  EXPECT_EQ(list.ItemData(2), 9);
}

TEST_F(DropDownListContract, TellsOfAChoiceOfTheProgram) {
  const Subscription choice = list.OnChoice([&] { notes.push_back(std::to_string(list.Chosen())); });
  list.Choose(1);
  EXPECT_THAT(notes, ElementsAre("1"));
}

TEST_F(DropDownListContract, TellsOfAChoiceOfTheOperator) {
  const Subscription choice = list.OnChoice([&] { notes.push_back(std::to_string(list.Chosen())); });
  under_test->Choose(list, "Tuesday");
  EXPECT_THAT(notes, ElementsAre("1"));
}

TEST_F(DropDownListContract, CanHaveNothingChosenAgain) {
  list.Choose(1);
  list.Choose(-1);
  EXPECT_EQ(list.Chosen(), -1);
}

TEST_F(DropDownListContract, HasNoItemOutsideItself) {
  list.Choose(0);
  const Subscription choice = list.OnChoice(Note("choice"));
  ExpectFailure(failure_number::kSubscriptOutOfRange, "", [&] { list.Choose(2); });
  ExpectFailure(failure_number::kSubscriptOutOfRange, "", [&] { list.Choose(-2); });
  for (const int position : {-1, 2}) {
    ExpectFailure(failure_number::kSubscriptOutOfRange, "",
                  [&] { static_cast<void>(list.ItemText(position)); });
    ExpectFailure(failure_number::kSubscriptOutOfRange, "",
                  [&] { static_cast<void>(list.ItemData(position)); });
  }
  EXPECT_EQ(list.Chosen(), 0);
  EXPECT_THAT(notes, IsEmpty());
}

TEST_F(DropDownListContract, ChoosesNothingWhenItemsAreAdded) {
  const Subscription choice = list.OnChoice(Note("choice"));
  list.AddItem("Wednesday", 4);
  EXPECT_EQ(list.Chosen(), -1);
  EXPECT_THAT(notes, IsEmpty());
}

class DatePickerContract : public ToolkitContract {
 protected:
  DatePicker& picker = The<DatePicker>("dtpDay");
};

TEST_F(DatePickerContract, KeepsTheDateOfTheProgram) {
  for (const Date& date : {Date(1999, 12, 25), Date(2024, 2, 29), Date(3000, 1, 1)}) {
    picker.SetDate(date);
    EXPECT_EQ(picker.Date(), date);
  }
}

TEST_F(DatePickerContract, KeepsItsDateInAnyFormat) {
  picker.SetDate(Date(2026, 7, 4));
  picker.SetCustomFormat("d  MMMM");
  EXPECT_EQ(picker.Date(), Date(2026, 7, 4));
}

TEST_F(DatePickerContract, TakesTheDateOfTheOperator) {
  picker.SetDate(Date(2026, 7, 4));
  under_test->PickDate(picker, Date(2026, 7, 15));
  EXPECT_EQ(picker.Date(), Date(2026, 7, 15));
}

TEST_F(DatePickerContract, HoldsTheDateThatTheProgramSetsOrTheOperatorPicks) {
  EXPECT_TRUE(picker.RequireDate());
  under_test->TypeNoDate(picker);
  under_test->PickDate(picker, Date(2026, 7, 5));
  picker.SetDate(Date(2026, 7, 4));
  EXPECT_TRUE(picker.RequireDate());
  EXPECT_FALSE(under_test->ShowsRefusal(picker));
  EXPECT_EQ(picker.Date(), Date(2026, 7, 4));
}

TEST_F(DatePickerContract, KeepsATextThatIsNoDateAndTellsTheOperatorWhenADateIsRequired) {
  picker.SetDate(Date(2026, 7, 4));
  under_test->TypeNoDate(picker);
  EXPECT_EQ(picker.Date(), Date(2026, 7, 4));
  EXPECT_FALSE(picker.RequireDate());
  EXPECT_TRUE(under_test->ShowsRefusal(picker));
  EXPECT_EQ(picker.Date(), Date(2026, 7, 4));
}

TEST_F(DatePickerContract, TakesTheFocusWhenItHoldsNoDateThatIsRequired) {
  auto& box = The<TextBox>("txtText");
  under_test->TypeNoDate(picker);
  box.SetFocus();
  const Subscription lost = box.OnLostFocus(Note("lost"));
  EXPECT_FALSE(picker.RequireDate());
  EXPECT_THAT(notes, ElementsAre("lost"));
}

class UpDownContract : public ToolkitContract {
 protected:
  UpDownContract() {
    number.SetRange(1900, 3000, 1);
    number.SetValue(2026);
  }
  UpDown& number = The<UpDown>("udNumber");
};

TEST_F(UpDownContract, TellsOfAValueOfTheProgram) {
  const Subscription changed = number.OnChange([&] { notes.push_back(std::to_string(number.Value())); });
  number.SetValue(2027);
  EXPECT_THAT(notes, ElementsAre("2027"));
}

TEST_F(UpDownContract, TellsOfAValueThatItHadAlready) {
  const Subscription changed = number.OnChange(Note("change"));
  number.SetValue(2026);
  EXPECT_THAT(notes, ElementsAre("change"));
}

TEST_F(UpDownContract, TellsOfEachStep) {
  const Subscription changed = number.OnChange([&] { notes.push_back(std::to_string(number.Value())); });
  under_test->StepUp(number);
  under_test->StepUp(number);
  under_test->StepDown(number);
  EXPECT_THAT(notes, ElementsAre("2027", "2028", "2027"));
}

TEST_F(UpDownContract, StepsByItsStep) {
  number.SetRange(1900, 3000, 10);
  under_test->StepUp(number);
  EXPECT_EQ(number.Value(), 2036);
}

TEST_F(UpDownContract, StopsAtBothEnds) {
  number.SetValue(3000);
  under_test->StepUp(number);
  EXPECT_EQ(number.Value(), 3000);
  number.SetValue(1900);
  under_test->StepDown(number);
  EXPECT_EQ(number.Value(), 1900);
}

TEST_F(UpDownContract, RefusesAValueOutsideItsRange) {
  ExpectFailure(failure_number::kInvalidArgument, "", [&] { number.SetValue(1899); });
  ExpectFailure(failure_number::kInvalidArgument, "", [&] { number.SetValue(3001); });
  EXPECT_EQ(number.Value(), 2026);
}

TEST_F(UpDownContract, MovesItsValueIntoANewRange) {
  number.SetRange(2030, 2040, 1);
  EXPECT_EQ(number.Value(), 2030);
  number.SetRange(2000, 2020, 1);
  EXPECT_EQ(number.Value(), 2020);
}

}  // namespace
}  // namespace ferrowind::contract
