#pragma once

#include <gtest/gtest.h>

#include "tests/windows/automation/server_file.h"

namespace ferrowind::testing {

/// The file, registered for all as long as it lives.
class RegisteredFile {
 public:
  RegisteredFile() { EXPECT_EQ(file.Register(), S_OK); }
  ~RegisteredFile() { EXPECT_EQ(file.Unregister(), S_OK); }
  RegisteredFile(const RegisteredFile&) = delete;
  RegisteredFile& operator=(const RegisteredFile&) = delete;

  ServerFile file;
};

}  // namespace ferrowind::testing
