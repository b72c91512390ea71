#pragma once

#include <string>

#include <windows.h>
#include <gtest/gtest.h>

namespace ferrowind::testing {

/// What a script writes, run by the platform's own host of scripts. That is no console program to Wine, so
/// its output has to be said to be a file.
[[nodiscard]] inline std::string OutputOfScript(const std::wstring& path) {
  wchar_t folder[MAX_PATH] = {};
  wchar_t file[MAX_PATH] = {};
  EXPECT_NE(GetTempPathW(MAX_PATH, folder), 0U);
  EXPECT_NE(GetTempFileNameW(folder, L"fwd", 0, file), 0U);
  SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
  const HANDLE output = CreateFileW(file, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ, &inherited,
                                    CREATE_ALWAYS, FILE_FLAG_DELETE_ON_CLOSE, nullptr);
  EXPECT_NE(output, INVALID_HANDLE_VALUE);

  STARTUPINFOW start{};
  start.cb = sizeof start;
  start.dwFlags = STARTF_USESTDHANDLES;
  start.hStdOutput = output;
  start.hStdError = output;
  PROCESS_INFORMATION process{};
  std::wstring command = L"cscript.exe //nologo \"" + path + L"\"";
  EXPECT_TRUE(
      CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start, &process));
  EXPECT_EQ(WaitForSingleObject(process.hProcess, INFINITE), WAIT_OBJECT_0);
  DWORD status = 1;
  EXPECT_TRUE(GetExitCodeProcess(process.hProcess, &status));
  EXPECT_EQ(status, 0U);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);

  std::string text(GetFileSize(output, nullptr), '\0');
  SetFilePointer(output, 0, nullptr, FILE_BEGIN);
  DWORD length = 0;
  EXPECT_TRUE(ReadFile(output, text.data(), static_cast<DWORD>(text.size()), &length, nullptr));
  CloseHandle(output);
  std::erase(text, '\r');
  return text;
}

}  // namespace ferrowind::testing
