#include "ferrowind/adapters/services/trace_file.h"

#include <regex>
#include <string>

#include <gtest/gtest.h>

#include "ferrowind/platform/values/failure.h"

#include "tests/unit/adapters/services/trace_file_fixture.h"

namespace ferrowind {
namespace {

using testing::TraceFileTest;

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
