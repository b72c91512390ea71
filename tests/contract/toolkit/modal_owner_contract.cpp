// A modal form goes with the form that it belongs to.
#include "tests/contract/toolkit/toolkit_contract.h"

namespace ferrowind::contract {
namespace {

using platform::Button;
using platform::ControlOf;
using platform::Form;
using platform::Interruption;
using platform::Subscription;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class ModalOwnerContract : public ToolkitContract {
 protected:
  [[nodiscard]] static Button& ButtonOf(Form& of, const std::string& name) {
    return ControlOf<Button>(of, name);
  }

  /// A click on the button shows `modal`, in which `script` is played; what becomes of it is noted.
  [[nodiscard]] Subscription OpenBy(Button& button, Form& modal, std::function<void()> script) {
    return button.OnClick([this, &modal, script = std::move(script)] {
      try {
        under_test->ShowModal(modal, script);
        notes.push_back(modal.Name() + " returned");
      } catch (const Interruption& interruption) {
        EXPECT_EQ(interruption.Number(), platform::failure_number::kInterrupted);
        EXPECT_THAT(interruption.Description(), HasSubstr(modal.Name()));
        notes.push_back(modal.Name() + " interrupted");
      }
      EXPECT_FALSE(modal.IsShown());
    });
  }
  /// A click on the contract form's button shows the dialog.
  [[nodiscard]] Subscription OpenDialog(std::function<void()> script) {
    return OpenBy(The<Button>("cmdPush"), *dialog, std::move(script));
  }

  std::shared_ptr<Form> dialog = toolkit.CreateForm(ContractFixedDialog());
  std::shared_ptr<Form> inner = toolkit.CreateForm(ContractClosableDialog());
};

TEST_F(ModalOwnerContract, InterruptsTheDialogOfAFormThatIsUnloaded) {
  const Subscription query = dialog->OnCloseQuery([&](bool&) { notes.push_back("asked"); });
  const Subscription opened = OpenDialog([&] {
    EXPECT_TRUE(form->Unload());
    EXPECT_FALSE(dialog->IsShown());
    EXPECT_FALSE(form->IsShown());
    notes.push_back("unloaded");
  });
  under_test->Click(The<Button>("cmdPush"));
  EXPECT_THAT(notes, ElementsAre("unloaded", "fmContractFixed interrupted"));
}

TEST_F(ModalOwnerContract, InterruptsAllThatWasOpenedFromTheDialogTheInnermostFirst) {
  const Subscription inner_opened = OpenBy(ButtonOf(*dialog, "cmdFirst"), *inner, [&] {
    EXPECT_TRUE(form->Unload());
    EXPECT_FALSE(inner->IsShown());
    EXPECT_FALSE(dialog->IsShown());
  });
  const Subscription opened = OpenDialog([&] { under_test->Click(ButtonOf(*dialog, "cmdFirst")); });
  under_test->Click(The<Button>("cmdPush"));
  EXPECT_THAT(notes, ElementsAre("fmContractClosable interrupted", "fmContractFixed interrupted"));
}

TEST_F(ModalOwnerContract, InterruptsWhatBelongsToAModalFormThatIsUnloadedItself) {
  const Subscription inner_opened =
      OpenBy(ButtonOf(*dialog, "cmdFirst"), *inner, [&] { EXPECT_TRUE(dialog->Unload()); });
  const Subscription opened = OpenDialog([&] { under_test->Click(ButtonOf(*dialog, "cmdFirst")); });
  under_test->Click(The<Button>("cmdPush"));
  EXPECT_THAT(notes, ElementsAre("fmContractClosable interrupted", "fmContractFixed returned"));
  EXPECT_TRUE(form->IsShown());
}

TEST_F(ModalOwnerContract, LeavesTheDialogOfAnotherFormAlone) {
  const auto other = toolkit.CreateForm(ContractForm());
  other->Show();
  const Subscription ok = ButtonOf(*dialog, "cmdOk").OnClick([&] { dialog->Hide(); });
  const Subscription opened = OpenDialog([&] {
    EXPECT_TRUE(other->Unload());
    EXPECT_TRUE(dialog->IsShown());
    under_test->Click(ButtonOf(*dialog, "cmdOk"));
  });
  under_test->Click(The<Button>("cmdPush"));
  EXPECT_THAT(notes, ElementsAre("fmContractFixed returned"));
}

TEST_F(ModalOwnerContract, LeavesTheDialogOfAFormThatRefusesToUnloadAlone) {
  const Subscription refusing = form->OnCloseQuery([](bool& cancel) { cancel = true; });
  const Subscription ok = ButtonOf(*dialog, "cmdOk").OnClick([&] { dialog->Hide(); });
  const Subscription opened = OpenDialog([&] {
    EXPECT_FALSE(form->Unload());
    EXPECT_TRUE(dialog->IsShown());
    under_test->Click(ButtonOf(*dialog, "cmdOk"));
  });
  under_test->Click(The<Button>("cmdPush"));
  EXPECT_THAT(notes, ElementsAre("fmContractFixed returned"));
}

TEST_F(ModalOwnerContract, ReturnsFromADialogThatWasAnsweredJustBefore) {
  const Subscription ok = ButtonOf(*dialog, "cmdOk").OnClick([&] {
    dialog->Hide();
    EXPECT_TRUE(form->Unload());
  });
  const Subscription opened = OpenDialog([&] { under_test->Click(ButtonOf(*dialog, "cmdOk")); });
  under_test->Click(The<Button>("cmdPush"));
  EXPECT_THAT(notes, ElementsAre("fmContractFixed returned"));
}

TEST_F(ModalOwnerContract, InterruptsTheDialogOfAFormThatIsDropped) {
  std::weak_ptr<Form> dropped = form;
  const Subscription opened = OpenDialog([&] {
    // The handler that waits for the dialog may hold the form; then it ends with the handler.
    form.reset();
    if (dropped.expired()) {
      EXPECT_FALSE(dialog->IsShown());
    } else {
      dialog->Hide();
    }
  });
  under_test->Click(The<Button>("cmdPush"));
  EXPECT_TRUE(dropped.expired());
  EXPECT_FALSE(dialog->IsShown());
}

TEST_F(ModalOwnerContract, DoesNotInterruptAFormThatIsShownModallyAgain) {
  const Subscription opened = OpenDialog([&] { EXPECT_TRUE(form->Unload()); });
  under_test->Click(The<Button>("cmdPush"));
  notes.clear();
  const Subscription ok = ButtonOf(*dialog, "cmdOk").OnClick([&] { dialog->Hide(); });
  under_test->ShowModal(*dialog, [&] { under_test->Click(ButtonOf(*dialog, "cmdOk")); });
  EXPECT_THAT(notes, IsEmpty());
}

}  // namespace
}  // namespace ferrowind::contract
