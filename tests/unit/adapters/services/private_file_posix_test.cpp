// How a trace file is kept from others by the rights, links and kinds of files of POSIX.
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "ferrowind/adapters/services/trace_file.h"
#include "ferrowind/platform/values/failure.h"

#include "tests/unit/adapters/services/trace_file_fixture.h"

namespace ferrowind {
namespace {

using PrivateFileTest = testing::TraceFileTest;

TEST_F(PrivateFileTest, IsReadableByItsOwnerOnly) {
  const TraceFile trace(path_);
  struct stat status {};
  ASSERT_EQ(::stat(path_.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777U, 0600U);
}

TEST_F(PrivateFileTest, IsReadableByItsOwnerOnlyWhereThereWasOneForAll) {
  std::ofstream(path_) << "older\n";
  ASSERT_EQ(::chmod(path_.c_str(), 0644), 0);
  TraceFile(path_).Write("newer");
  struct stat status {};
  ASSERT_EQ(::stat(path_.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777U, 0600U);
  EXPECT_TRUE(Content().starts_with("older\n")) << Content();
  EXPECT_NE(Content().find("newer"), std::string::npos) << Content();
}

TEST_F(PrivateFileTest, DoesNotWriteToWhatOthersMayHavePutThere) {
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

}  // namespace
}  // namespace ferrowind
