#include "ferrowind/adapters/services/trace_file.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <sstream>
#include <string>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind {
namespace {

class TraceFileTest : public ::testing::Test {
 protected:
  TraceFileTest() { std::filesystem::remove(path_); }
  ~TraceFileTest() override { std::filesystem::remove(path_); }

  [[nodiscard]] std::string Content() const {
    std::ifstream file(path_, std::ios::binary);
    std::stringstream content;
    content << file.rdbuf();
    return content.str();
  }

  std::string path_ =
      ::testing::TempDir() + ::testing::UnitTest::GetInstance()->current_test_info()->name() + ".trace";
};

TEST_F(TraceFileTest, WritesALineWithTheTimeForEachText) {
  TraceFile trace(path_);
  trace.Write("Execute Procedure [CldAllInfo]");
  trace.Write("second");
  const std::regex lines(
      R"(\d{4}-\d\d-\d\dT\d\d:\d\d:\d\dZ Execute Procedure \[CldAllInfo\]\n\d{4}-\d\d-\d\dT\d\d:\d\d:\d\dZ second\n)");
  EXPECT_TRUE(std::regex_match(Content(), lines)) << Content();
}

TEST_F(TraceFileTest, AppendsToWhatIsThere) {
  TraceFile(path_).Write("first run");
  TraceFile(path_).Write("second run");
  EXPECT_NE(Content().find("first run"), std::string::npos);
  EXPECT_NE(Content().find("second run"), std::string::npos);
}

TEST_F(TraceFileTest, KeepsATextOfManyLinesOnOne) {
  TraceFile trace(path_);
  trace.Write(std::string("a\r\nb\tc\0d\\e", 10));
  EXPECT_NE(Content().find("a\\r\\nb\\x09c\\x00d\\\\e\n"), std::string::npos) << Content();
}

TEST_F(TraceFileTest, HoldsNoPassword) {
  TraceFile trace(path_);
  trace.Write("connecting to postgresql://anna:secret@db/x");
  EXPECT_EQ(Content().find("secret"), std::string::npos) << Content();
  EXPECT_NE(Content().find("anna:***"), std::string::npos) << Content();
}

TEST_F(TraceFileTest, IsReadableByItsOwnerOnly) {
  const TraceFile trace(path_);
  struct stat status {};
  ASSERT_EQ(::stat(path_.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777U, 0600U);
}

TEST_F(TraceFileTest, IsReadableByItsOwnerOnlyWhereThereWasOneForAll) {
  std::ofstream(path_) << "older\n";
  ASSERT_EQ(::chmod(path_.c_str(), 0644), 0);
  TraceFile(path_).Write("newer");
  struct stat status {};
  ASSERT_EQ(::stat(path_.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777U, 0600U);
  EXPECT_TRUE(Content().starts_with("older\n")) << Content();
  EXPECT_NE(Content().find("newer"), std::string::npos) << Content();
}

TEST_F(TraceFileTest, DoesNotWriteToWhatOthersMayHavePutThere) {
  const std::string victim = path_ + ".victim";
  std::ofstream(victim) << "precious";
  const auto refusal = [&] {
    try {
      TraceFile(path_).Write("traced");
    } catch (const platform::Failure& failure) {
      return failure.Description();
    }
    return std::string("none");
  };
  std::filesystem::create_symlink(victim, path_);
  EXPECT_EQ(refusal(), "Cannot write the trace file " + path_ + ": it is a link");
  std::filesystem::remove(path_);
  std::filesystem::create_hard_link(victim, path_);
  EXPECT_EQ(refusal(), "Cannot write the trace file " + path_ + ": it has another name as well");
  std::filesystem::remove(path_);
  ASSERT_EQ(::mkfifo(path_.c_str(), 0600), 0);
  const int reader = ::open(path_.c_str(), O_RDONLY | O_NONBLOCK);
  EXPECT_EQ(refusal(), "Cannot write the trace file " + path_ + ": it is no file");
  ::close(reader);
  std::filesystem::remove(path_);
  std::ifstream file(victim);
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(file), {}), "precious");
  file.close();
  std::filesystem::remove(victim);
}

TEST_F(TraceFileTest, NamesAFileThatCannotBeWritten) {
  try {
    const TraceFile trace("/nowhere/at/all.trace");
    ADD_FAILURE() << "A file in a missing folder was opened";
  } catch (const platform::Failure& failure) {
    EXPECT_NE(failure.Description().find("/nowhere/at/all.trace"), std::string::npos)
        << failure.Description();
  }
}

}  // namespace
}  // namespace ferrowind
