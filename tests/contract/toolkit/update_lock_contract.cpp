#include "tests/contract/toolkit/toolkit_contract.h"

namespace ferrowind::contract {
namespace {

class UpdateLockContract : public ToolkitContract {};

TEST_F(UpdateLockContract, LocksOneElementAtATime) {
  platform::Control& splitter = form->ControlNamed("sssp");
  EXPECT_TRUE(toolkit.LockUpdates(splitter));
  EXPECT_FALSE(toolkit.LockUpdates(*form));
  EXPECT_FALSE(toolkit.LockUpdates(splitter));
  toolkit.UnlockUpdates();
  EXPECT_TRUE(toolkit.LockUpdates(*form));
  toolkit.UnlockUpdates();
}

TEST_F(UpdateLockContract, IsOffAfterOneUnlockWhateverWasRefused) {
  EXPECT_TRUE(toolkit.LockUpdates(*form));
  EXPECT_FALSE(toolkit.LockUpdates(form->ControlNamed("sssp")));
  toolkit.UnlockUpdates();
  EXPECT_TRUE(toolkit.LockUpdates(form->ControlNamed("sssp")));
  toolkit.UnlockUpdates();
}

TEST_F(UpdateLockContract, MayBeUnlockedWithoutALock) {
  EXPECT_NO_THROW(toolkit.UnlockUpdates());
  EXPECT_TRUE(toolkit.LockUpdates(*form));
  toolkit.UnlockUpdates();
}

TEST_F(UpdateLockContract, EndsWithTheElement) {
  auto other = toolkit.CreateForm(ContractForm());
  EXPECT_TRUE(toolkit.LockUpdates(other->ControlNamed("sssp")));
  other.reset();
  EXPECT_TRUE(toolkit.LockUpdates(*form));
  toolkit.UnlockUpdates();
}

TEST_F(UpdateLockContract, MayBeUnlockedWhenTheElementIsGone) {
  auto other = toolkit.CreateForm(ContractForm());
  EXPECT_TRUE(toolkit.LockUpdates(*other));
  other.reset();
  EXPECT_NO_THROW(toolkit.UnlockUpdates());
}

TEST_F(UpdateLockContract, ChangesNothingThatTheElementTells) {
  auto& text_box = The<platform::TextBox>("txtText");
  EXPECT_TRUE(toolkit.LockUpdates(*form));
  text_box.SetText("while locked");
  EXPECT_TRUE(form->IsShown());
  EXPECT_EQ(text_box.Text(), "while locked");
  toolkit.UnlockUpdates();
  EXPECT_EQ(text_box.Text(), "while locked");
}

}  // namespace
}  // namespace ferrowind::contract
