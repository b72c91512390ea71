#include "ferrowind/exchange/list_file.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "ferrowind/exchange/list_text.h"
#include "ferrowind/platform/values/failure.h"
#include "ferrowind/platform/values/file_path.h"

#include "tests/support/failure_of.h"

namespace ferrowind::exchange {
namespace {

using ::testing::HasSubstr;

/// What the system says of a folder that is opened as a file.
#ifdef _WIN32
constexpr int kFolderOpened = EACCES;
#else
constexpr int kFolderOpened = EISDIR;
#endif

class ListFileTest : public ::testing::Test {
 protected:
  ListFileTest() { std::filesystem::create_directories(folder_); }
  ~ListFileTest() override { std::filesystem::remove_all(folder_); }

  [[nodiscard]] std::string Path(const std::string& name) const {
    return platform::FileName(folder_ / platform::FilePath(name));
  }

 private:
  std::filesystem::path folder_ =
      std::filesystem::path(::testing::TempDir()) / ("ferrowind-list-file-" + std::to_string(getpid()));
};

TEST_F(ListFileTest, IsReadAsItWasWritten) {
  const std::string text("a\r\nb\0c\n", 7);
  WriteListFile(Path("f\xC3\xAAtes.csv"), text);
  EXPECT_EQ(ReadListFile(Path("f\xC3\xAAtes.csv")), text);
  WriteListFile(Path("f\xC3\xAAtes.csv"), "");
  EXPECT_EQ(ReadListFile(Path("f\xC3\xAAtes.csv")), "");
}

TEST_F(ListFileTest, IsReadNoFurtherThanOneSeesThatItIsTooLong) {
  WriteListFile(Path("long"), std::string(3 * kLongestList, 'x'));
  EXPECT_EQ(ReadListFile(Path("long")).size(), kLongestList + 1);
}

TEST_F(ListFileTest, IsNotReadFromWhatIsNoFile) {
  EXPECT_THAT(testing::FailureOf([&] { (void)ReadListFile(Path("")); }).Description(),
              HasSubstr(" cannot be read: it is no file"));
  EXPECT_THAT(testing::FailureOf([&] { (void)ReadListFile(Path("none")); }).Description(),
              HasSubstr("none cannot be read: No such file or directory"));
}

TEST_F(ListFileTest, IsReplacedAsAWholeOrStaysAsItWas) {
  WriteListFile(Path("list"), "before");
  std::filesystem::create_directory(Path("list.part"));
  EXPECT_THAT(testing::FailureOf([&] { WriteListFile(Path("list"), "after"); }).Description(),
              HasSubstr(std::string("list cannot be written: ") + std::strerror(kFolderOpened)));
  EXPECT_EQ(ReadListFile(Path("list")), "before");
  std::filesystem::remove(Path("list.part"));
  WriteListFile(Path("list"), "after");
  EXPECT_EQ(ReadListFile(Path("list")), "after");
  EXPECT_FALSE(std::filesystem::exists(Path("list.part")));
}

}  // namespace
}  // namespace ferrowind::exchange
