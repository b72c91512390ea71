#include "ferrowind/adapters/win32/services/message_box.h"

#include <functional>
#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "ferrowind/adapters/win32/forms/win32_toolkit.h"
#include "ferrowind/platform/toolkit/form.h"
#include "ferrowind/platform/values/failure.h"

#include "tests/windows/win32/input.h"
#include "tests/windows/win32/message_boxes.h"

namespace ferrowind::win32 {
namespace {

using contract::AnsweringOperator;
using contract::OpenMessageBox;

FormLayouts Layouts() {
  FormLayouts layouts;
  layouts.Add("fmOwner", {.places = {{.name = "txtText"}}});
  layouts.Add("fmOther", {.places = {{.name = "txtText"}}});
  return layouts;
}

class MessageBoxTest : public testing::Test {
 protected:
  std::shared_ptr<platform::Form> NewForm(const char* name) {
    auto form = toolkit_.CreateForm({.name = name,
                                     .caption = name,
                                     .client_width = 3000,
                                     .client_height = 1500,
                                     .controls = {{platform::ControlKind::kTextBox, "txtText"}}});
    form->Show();
    return form;
  }
  /// The box's own message loop is to handle it.
  static void PressInBox(WORD key) {
    INPUT inputs[2]{};
    for (INPUT& input : inputs) {
      input.type = INPUT_KEYBOARD;
      input.ki.wVk = key;
    }
    inputs[1].ki.dwFlags = KEYEVENTF_KEYUP;
    SendInput(2, inputs, sizeof(INPUT));
  }
  static HWND WindowOf(const wchar_t* caption) { return FindWindowW(nullptr, caption); }
  /// Does something as soon as a box is there, and then answers it.
  [[nodiscard]] platform::Subscription OnceThereIsABox(std::function<void()> act) {
    return toolkit_.After(5, [this, act = std::move(act)] {
      if (OpenMessageBox() == nullptr) {
        waiting_ = OnceThereIsABox(act);
        return;
      }
      act();
    });
  }

  Win32Toolkit toolkit_{Layouts()};
  std::shared_ptr<platform::Form> owner_ = NewForm("fmOwner");
  std::shared_ptr<platform::Form> other_ = NewForm("fmOther");
  platform::Subscription waiting_;
};

TEST_F(MessageBoxTest, KeepsInputFromAllWindowsUntilItIsAnswered) {
  bool took_input = true;
  const auto act = OnceThereIsABox([&] {
    took_input = IsWindowEnabled(WindowOf(L"fmOwner")) != 0 || IsWindowEnabled(WindowOf(L"fmOther")) != 0;
    PostMessageW(OpenMessageBox(), WM_COMMAND, IDOK, 0);
  });
  ShowMessageBox({.title = L"Title", .text = L"Text"});
  EXPECT_FALSE(took_input);
  EXPECT_NE(IsWindowEnabled(WindowOf(L"fmOwner")), 0);
  EXPECT_NE(IsWindowEnabled(WindowOf(L"fmOther")), 0);
}

TEST_F(MessageBoxTest, IsAnsweredByEnterAndByEsc) {
  for (const WORD key : {WORD{VK_RETURN}, WORD{VK_ESCAPE}}) {
    const auto act = OnceThereIsABox([key] { PressInBox(key); });
    ShowMessageBox({.title = L"Title", .text = L"Text", .is_error = true});
    EXPECT_EQ(OpenMessageBox(), nullptr);
  }
}

TEST_F(MessageBoxTest, CutsWhatWouldNotFitOnAScreen) {
  const AnsweringOperator answers;
  ShowMessageBox({.title = L"Title", .text = std::wstring(5000, L'x')});
  ASSERT_EQ(answers.AnsweredTexts().size(), 1U);
  EXPECT_EQ(answers.AnsweredTexts()[0], std::string(1200, 'x') + "\u2026");
}

TEST_F(MessageBoxTest, GoesWithItsOwner) {
  other_->Unload();
  SetForegroundWindow(WindowOf(L"fmOwner"));
  contract::Settle();
  const auto act = OnceThereIsABox([&] { owner_->Unload(); });
  EXPECT_THROW(ShowMessageBox({.title = L"Title", .text = L"Text"}), platform::Interruption);
  EXPECT_EQ(OpenMessageBox(), nullptr);
}

TEST_F(MessageBoxTest, GoesWithTheApplicationAndNoneComesAfterIt) {
  const auto act = OnceThereIsABox([] { PostQuitMessage(3); });
  EXPECT_THROW(ShowMessageBox({.title = L"Title", .text = L"Text"}), platform::Interruption);
  ShowMessageBox({.title = L"Title", .text = L"Nobody sees this"});
  MSG message{};
  ASSERT_NE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE), 0);
  EXPECT_EQ(message.wParam, 3U);
}

}  // namespace
}  // namespace ferrowind::win32
