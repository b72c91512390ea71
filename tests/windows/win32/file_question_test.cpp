#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

#include "ferrowind/adapters/win32/base/wide_text.h"
#include "ferrowind/adapters/win32/forms/win32_toolkit.h"

#include "tests/windows/win32/file_dialog.h"

namespace ferrowind::win32 {
namespace {

constexpr std::int32_t kMoment = 50;

class FileQuestionTest : public testing::Test {
 protected:
  FileQuestionTest() {
    std::filesystem::create_directories(folder_);
    std::ofstream(folder_ / "there.pdf") << "old";
  }
  ~FileQuestionTest() override { std::filesystem::remove_all(folder_); }

  /// Saves under that name, and answers each question that follows by `answer`; the last one is turned down.
  std::optional<std::string> Save(const std::wstring& name, WORD answer) {
    std::function<void()> answer_next = [&] {
      const HWND dialog = contract::FrontDialog();
      if (dialog == nullptr) {
        next_ = toolkit_.After(kMoment, answer_next);
        return;
      }
      if (question_ == nullptr) {
        question_ = dialog;
        contract::TypeFileName(dialog, (folder_ / name).wstring());
        PostMessageW(dialog, WM_COMMAND, IDOK, 0);
      } else if (dialog != question_) {
        ++asked_;
        PostMessageW(dialog, WM_COMMAND, answer, 0);
      } else if (asked_ > 0) {
        PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
      }
      next_ = toolkit_.After(kMoment, answer_next);
    };
    next_ = toolkit_.After(kMoment, answer_next);
    auto chosen = toolkit_.ChooseFileToSave("Save", "year", {{"PDF document", "pdf"}});
    next_ = {};
    return chosen;
  }

  std::filesystem::path folder_ = std::filesystem::temp_directory_path() / "ferrowind_file_question";
  Win32Toolkit toolkit_;
  platform::Subscription next_;
  HWND question_ = nullptr;
  int asked_ = 0;
};

TEST_F(FileQuestionTest, AsksBeforeItReplacesTheFileThatTheNameGetsASuffixFor) {
  EXPECT_EQ(Save(L"there", IDYES), FromWide((folder_ / "there.pdf").wstring()));
  EXPECT_EQ(asked_, 1);
}

TEST_F(FileQuestionTest, StaysWhereTheFileIsNotToBeReplaced) {
  EXPECT_EQ(Save(L"there.pdf", IDNO), std::nullopt);
  EXPECT_EQ(asked_, 1);
}

TEST_F(FileQuestionTest, DoesNotAskOfANewFile) {
  EXPECT_EQ(Save(L"new", IDNO), FromWide((folder_ / "new.pdf").wstring()));
  EXPECT_EQ(asked_, 0);
}

}  // namespace
}  // namespace ferrowind::win32
