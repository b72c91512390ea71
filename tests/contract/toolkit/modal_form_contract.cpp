#include "tests/contract/toolkit/toolkit_contract.h"

namespace ferrowind::contract {
namespace {

using platform::Button;
using platform::ControlOf;
using platform::Subscription;
using testing::ElementsAre;
using testing::IsEmpty;

class ModalFormContract : public ToolkitContract {
 protected:
  [[nodiscard]] Button& ButtonOf(platform::Form& of, const std::string& name) {
    return ControlOf<Button>(of, name);
  }

  std::shared_ptr<platform::Form> dialog = toolkit.CreateForm(ContractFixedDialog());
};

TEST_F(ModalFormContract, ReturnsWhenItIsHidden) {
  const Subscription clicked = ButtonOf(*dialog, "cmdOk").OnClick([&] { dialog->Hide(); });
  under_test->ShowModal(*dialog, [&] {
    EXPECT_TRUE(dialog->IsShown());
    under_test->Click(ButtonOf(*dialog, "cmdOk"));
  });
  EXPECT_FALSE(dialog->IsShown());
}

TEST_F(ModalFormContract, ReturnsWhenItIsUnloaded) {
  const Subscription clicked = ButtonOf(*dialog, "cmdOk").OnClick([&] { dialog->Unload(); });
  under_test->ShowModal(*dialog, [&] { under_test->Click(ButtonOf(*dialog, "cmdOk")); });
  EXPECT_FALSE(dialog->IsShown());
}

TEST_F(ModalFormContract, IsLoadedWhenItIsShown) {
  const Subscription loaded = dialog->OnLoad(Note("load"));
  const Subscription clicked = ButtonOf(*dialog, "cmdOk").OnClick([&] { dialog->Hide(); });
  under_test->ShowModal(*dialog, [&] {
    notes.push_back("shown");
    under_test->Click(ButtonOf(*dialog, "cmdOk"));
  });
  EXPECT_THAT(notes, ElementsAre("load", "shown"));
}

TEST_F(ModalFormContract, ReturnsAtOnceWhenItsLoadHandlerUnloadsIt) {
  const Subscription loaded = dialog->OnLoad([&] { dialog->Unload(); });
  dialog->ShowModal();
  EXPECT_FALSE(dialog->IsShown());
}

TEST_F(ModalFormContract, ReturnsAtOnceWhenItWasUnloadedBefore) {
  dialog->Unload();
  dialog->ShowModal();
  EXPECT_FALSE(dialog->IsShown());
}

TEST_F(ModalFormContract, CanBeShownAgainAfterItWasHidden) {
  const Subscription clicked = ButtonOf(*dialog, "cmdOk").OnClick([&] {
    notes.push_back("ok");
    dialog->Hide();
  });
  for (int i = 0; i < 2; ++i) {
    under_test->ShowModal(*dialog, [&] { under_test->Click(ButtonOf(*dialog, "cmdOk")); });
  }
  EXPECT_THAT(notes, ElementsAre("ok", "ok"));
}

TEST_F(ModalFormContract, CanBeNested) {
  const auto inner = toolkit.CreateForm(ContractClosableDialog());
  const Subscription inner_ok = ButtonOf(*inner, "cmdOk").OnClick([&] { inner->Hide(); });
  const Subscription outer_first = ButtonOf(*dialog, "cmdFirst").OnClick([&] {
    under_test->ShowModal(*inner, [&] {
      notes.push_back("inner");
      under_test->Click(ButtonOf(*inner, "cmdOk"));
    });
    notes.push_back("inner returned");
  });
  const Subscription outer_ok = ButtonOf(*dialog, "cmdOk").OnClick([&] { dialog->Hide(); });
  under_test->ShowModal(*dialog, [&] {
    under_test->Click(ButtonOf(*dialog, "cmdFirst"));
    EXPECT_TRUE(dialog->IsShown());
    notes.push_back("outer");
    under_test->Click(ButtonOf(*dialog, "cmdOk"));
  });
  EXPECT_THAT(notes, ElementsAre("inner", "inner returned", "outer"));
}

TEST_F(ModalFormContract, CannotBeClosedByTheFrameOfAFixedDialog) {
  const Subscription query = dialog->OnCloseQuery([&](bool&) { notes.push_back("query"); });
  const Subscription clicked = ButtonOf(*dialog, "cmdOk").OnClick([&] { dialog->Hide(); });
  under_test->ShowModal(*dialog, [&] {
    under_test->CloseByFrame(*dialog);
    EXPECT_TRUE(dialog->IsShown());
    EXPECT_THAT(notes, IsEmpty());
    under_test->Click(ButtonOf(*dialog, "cmdOk"));
  });
}

TEST_F(ModalFormContract, CanBeClosedByTheFrameOfAClosableDialog) {
  const auto closable = toolkit.CreateForm(ContractClosableDialog());
  const Subscription query = closable->OnCloseQuery([&](bool&) { notes.push_back("query"); });
  under_test->ShowModal(*closable, [&] { under_test->CloseByFrame(*closable); });
  EXPECT_FALSE(closable->IsShown());
  EXPECT_THAT(notes, ElementsAre("query"));
}

TEST_F(ModalFormContract, PressesTheDefaultButtonByEnter) {
  const Subscription ok = ButtonOf(*dialog, "cmdOk").OnClick([&] {
    notes.push_back("ok");
    dialog->Hide();
  });
  under_test->ShowModal(*dialog, [&] {
    ControlOf<platform::TextBox>(*dialog, "txtText").SetFocus();
    under_test->PressEnter(*dialog);
  });
  EXPECT_THAT(notes, ElementsAre("ok"));
}

TEST_F(ModalFormContract, GivesTypedTextToTheBoxThatTakesTypingInPlaceOfItsOwn) {
  auto& box = ControlOf<platform::TextBox>(*dialog, "txtText");
  box.SetText("2026");
  const Subscription ok = ButtonOf(*dialog, "cmdOk").OnClick([&] { dialog->Hide(); });
  under_test->ShowModal(*dialog, [&] {
    ButtonOf(*dialog, "cmdFirst").SetFocus();
    under_test->PressTextKeys(*dialog, "2031");
    EXPECT_EQ(box.Text(), "2031");
    under_test->PressTextKeys(*dialog, "5");
    EXPECT_EQ(box.Text(), "20315");
    under_test->PressEnter(*dialog);
  });
  EXPECT_FALSE(dialog->IsShown());
}

TEST_F(ModalFormContract, SelectsTheTextOfTheBoxThatTakesTypingWheneverItGetsTheFocus) {
  auto& box = ControlOf<platform::TextBox>(*dialog, "txtText");
  box.SetText("2026");
  const Subscription ok = ButtonOf(*dialog, "cmdOk").OnClick([&] { dialog->Hide(); });
  under_test->ShowModal(*dialog, [&] {
    ButtonOf(*dialog, "cmdFirst").SetFocus();
    under_test->TypeText(box, "7");
    EXPECT_EQ(box.Text(), "7");
    under_test->Click(ButtonOf(*dialog, "cmdOk"));
  });
}

TEST_F(ModalFormContract, PressesTheFocusedButtonByEnter) {
  const Subscription ok = ButtonOf(*dialog, "cmdOk").OnClick(Note("ok"));
  const Subscription first = ButtonOf(*dialog, "cmdFirst").OnClick([&] {
    notes.push_back("first");
    dialog->Hide();
  });
  under_test->ShowModal(*dialog, [&] {
    ButtonOf(*dialog, "cmdFirst").SetFocus();
    under_test->PressEnter(*dialog);
  });
  EXPECT_THAT(notes, ElementsAre("first"));
}

TEST_F(ModalFormContract, PressesTheCancelButtonByEscape) {
  const Subscription cancel = ButtonOf(*dialog, "cmdCancel").OnClick([&] {
    notes.push_back("cancel");
    dialog->Hide();
  });
  under_test->ShowModal(*dialog, [&] { under_test->PressEscape(*dialog); });
  EXPECT_THAT(notes, ElementsAre("cancel"));
}

TEST_F(ModalFormContract, IgnoresEscapeWithoutACancelButton) {
  const auto closable = toolkit.CreateForm(ContractClosableDialog());
  const Subscription ok = ButtonOf(*closable, "cmdOk").OnClick([&] { closable->Hide(); });
  under_test->ShowModal(*closable, [&] {
    under_test->PressEscape(*closable);
    EXPECT_TRUE(closable->IsShown());
    under_test->Click(ButtonOf(*closable, "cmdOk"));
  });
}

TEST_F(ModalFormContract, IsClosedByEscapeAsByItsFrameWhenDesignedSo) {
  auto design = ContractClosableDialog();
  design.closes_by_escape = true;
  const auto closable = toolkit.CreateForm(design);
  bool refuses = true;
  const Subscription query = closable->OnCloseQuery([&](bool& cancel) {
    notes.push_back("query");
    cancel = refuses;
  });
  under_test->ShowModal(*closable, [&] {
    under_test->PressEscape(*closable);
    EXPECT_TRUE(closable->IsShown());
    refuses = false;
    under_test->PressEscape(*closable);
  });
  EXPECT_FALSE(closable->IsShown());
  EXPECT_THAT(notes, ElementsAre("query", "query"));
}

TEST_F(ModalFormContract, IsNotClosedByEscapeThatTheCancelButtonTakes) {
  auto design = ContractFixedDialog();
  design.closes_by_escape = true;
  const auto fixed = toolkit.CreateForm(design);
  const Subscription query = fixed->OnCloseQuery([&](bool&) { notes.push_back("query"); });
  const Subscription cancel = ButtonOf(*fixed, "cmdCancel").OnClick([&] {
    notes.push_back("cancel");
    fixed->Hide();
  });
  under_test->ShowModal(*fixed, [&] { under_test->PressEscape(*fixed); });
  EXPECT_THAT(notes, ElementsAre("cancel"));
}

TEST_F(ModalFormContract, IsClosedByEscapeThatAHiddenCancelButtonDoesNotTake) {
  auto design = ContractFixedDialog();
  design.border = platform::FormBorder::kClosableDialog;
  design.closes_by_escape = true;
  const auto fixed = toolkit.CreateForm(design);
  ButtonOf(*fixed, "cmdCancel").SetVisible(false);
  const Subscription cancel = ButtonOf(*fixed, "cmdCancel").OnClick([&] { notes.push_back("cancel"); });
  under_test->ShowModal(*fixed, [&] { under_test->PressEscape(*fixed); });
  EXPECT_FALSE(fixed->IsShown());
  EXPECT_THAT(notes, testing::IsEmpty());
}

TEST_F(ModalFormContract, OpensInTheMiddleOfTheScreenWhenDesignedSo) {
  const Subscription ok = ButtonOf(*dialog, "cmdOk").OnClick([&] { dialog->Hide(); });
  under_test->ShowModal(*dialog, [&] {
    constexpr float kTwoPixels = 30;
    EXPECT_NEAR(dialog->Left() + dialog->Width() / 2, toolkit.Screen().width / 2, kTwoPixels);
    EXPECT_NEAR(dialog->Top() + dialog->Height() / 2, toolkit.Screen().height / 2, kTwoPixels);
    under_test->Click(ButtonOf(*dialog, "cmdOk"));
  });
}

}  // namespace
}  // namespace ferrowind::contract
