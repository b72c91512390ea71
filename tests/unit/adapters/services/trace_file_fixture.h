#pragma once

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

namespace ferrowind::testing {

/// A test with the path of a trace file, which goes with it.
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

}  // namespace ferrowind::testing
