// How a trace file is kept from others by the rights, links and kinds of files of Windows.
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <windows.h>
#include <aclapi.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/services/trace_file.h"
#include "ferrowind/platform/values/failure.h"

#include "tests/unit/adapters/services/trace_file_fixture.h"

namespace ferrowind {
namespace {

class PrivateFileTest : public testing::TraceFileTest {
 protected:
  /// How many entries of the file's rights give something to others than its owner, and to its owner.
  struct Rights {
    int of_others = 0;
    int of_owner = 0;
  };
  [[nodiscard]] Rights RightsOf() const {
    PSID owner = nullptr;
    PACL list = nullptr;
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    EXPECT_EQ(GetNamedSecurityInfoW(std::filesystem::path(path_).c_str(), SE_FILE_OBJECT,
                                    OWNER_SECURITY_INFORMATION | DACL_SECURITY_INFORMATION, &owner, nullptr,
                                    &list, nullptr, &descriptor),
              DWORD{ERROR_SUCCESS});
    Rights rights;
    for (WORD number = 0; list != nullptr && number < list->AceCount; ++number) {
      void* entry = nullptr;
      EXPECT_NE(GetAce(list, number, &entry), 0);
      auto* const allowed = static_cast<ACCESS_ALLOWED_ACE*>(entry);
      if (allowed->Header.AceType != ACCESS_ALLOWED_ACE_TYPE || allowed->Mask == 0) continue;
      // The system itself reads everything.
      if (IsWellKnownSid(&allowed->SidStart, WinLocalSystemSid) != 0) continue;
      ++(EqualSid(owner, &allowed->SidStart) != 0 ? rights.of_owner : rights.of_others);
    }
    EXPECT_NE(list, nullptr) << "Without a list everybody has all rights";
    LocalFree(descriptor);
    return rights;
  }
  /// Gives everybody all rights to the file.
  void AddEverybody() const {
    SECURITY_DESCRIPTOR rights{};
    ASSERT_NE(InitializeSecurityDescriptor(&rights, SECURITY_DESCRIPTOR_REVISION), 0);
    ASSERT_NE(SetSecurityDescriptorDacl(&rights, TRUE, nullptr, FALSE), 0);
    ASSERT_NE(SetFileSecurityW(std::filesystem::path(path_).c_str(), DACL_SECURITY_INFORMATION, &rights), 0);
  }
  [[nodiscard]] std::string Refusal() const {
    try {
      TraceFile(path_).Write("traced");
    } catch (const platform::Failure& failure) {
      return failure.Description();
    }
    return "none";
  }
};

TEST_F(PrivateFileTest, IsReadableByItsOwnerOnly) {
  const TraceFile trace(path_);
  EXPECT_EQ(RightsOf().of_owner, 1);
  EXPECT_EQ(RightsOf().of_others, 0);
}

TEST_F(PrivateFileTest, IsReadableByItsOwnerOnlyWhereThereWasOneForAll) {
  std::ofstream(path_, std::ios::binary) << "older\n";
  AddEverybody();
  EXPECT_GT(RightsOf().of_others, 0);
  TraceFile(path_).Write("newer");
  EXPECT_EQ(RightsOf().of_others, 0);
  EXPECT_TRUE(Content().starts_with("older\n")) << Content();
  EXPECT_NE(Content().find("newer"), std::string::npos) << Content();
}

TEST_F(PrivateFileTest, IsNoFileThatHasAnotherNameAsWell) {
  const std::string victim = path_ + ".victim";
  std::ofstream(victim) << "precious";
  std::filesystem::create_hard_link(victim, path_);
  EXPECT_EQ(Refusal(), "Cannot write the trace file " + path_ + ": it has another name as well");
  std::ifstream file(victim);
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(file), {}), "precious");
  file.close();
  std::filesystem::remove(victim);
}

TEST_F(PrivateFileTest, IsNoDevice) {
  path_ = "NUL";
  EXPECT_EQ(Refusal(), "Cannot write the trace file NUL: it is no file");
}

}  // namespace
}  // namespace ferrowind
