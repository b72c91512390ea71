#pragma once

#include <string>

#include <windows.h>
#include <gtest/gtest.h>

namespace ferrowind::testing {

/// How the script at that path is run, by the platform's own host of scripts.
[[nodiscard]] inline std::wstring RunOfScript(const std::wstring& path) {
  return L"cscript.exe //nologo \"" + path + L"\"";
}

/// A host in a program of its own, and what it writes.
class HostProcess {
 public:
  /// Starts it. Its output is a file: to Wine, the platform's host of scripts is no console program, and has
  /// to be told where its output goes.
  explicit HostProcess(std::wstring command) {
    wchar_t folder[MAX_PATH] = {};
    wchar_t file[MAX_PATH] = {};
    EXPECT_NE(GetTempPathW(MAX_PATH, folder), 0U);
    EXPECT_NE(GetTempFileNameW(folder, L"fwd", 0, file), 0U);
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    output_ = CreateFileW(file, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ, &inherited, CREATE_ALWAYS,
                          FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    EXPECT_NE(output_, INVALID_HANDLE_VALUE);
    STARTUPINFOW start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdOutput = output_;
    start.hStdError = output_;
    EXPECT_TRUE(CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start,
                               &process_));
  }
  ~HostProcess() {
    CloseHandle(process_.hThread);
    CloseHandle(process_.hProcess);
    CloseHandle(output_);
  }
  HostProcess(const HostProcess&) = delete;
  HostProcess& operator=(const HostProcess&) = delete;

  /// Waits for its window of that class and title; null when it has ended without one.
  [[nodiscard]] HWND Window(const wchar_t* window_class, const wchar_t* title) const {
    constexpr DWORD kMillisecondsBetweenLooks = 20;
    do {
      const HWND window = FindWindowW(window_class, title);
      if (window != nullptr && IsWindowVisible(window)) return window;
    } while (WaitForSingleObject(process_.hProcess, kMillisecondsBetweenLooks) == WAIT_TIMEOUT);
    return nullptr;
  }
  /// Waits for its end, which must be with that status; all that it has written, with single line feeds.
  [[nodiscard]] std::string Output(DWORD expected_status = 0) const {
    EXPECT_EQ(WaitForSingleObject(process_.hProcess, INFINITE), WAIT_OBJECT_0);
    DWORD status = 1;
    EXPECT_TRUE(GetExitCodeProcess(process_.hProcess, &status));
    EXPECT_EQ(status, expected_status);
    std::string text(GetFileSize(output_, nullptr), '\0');
    SetFilePointer(output_, 0, nullptr, FILE_BEGIN);
    DWORD length = 0;
    EXPECT_TRUE(ReadFile(output_, text.data(), static_cast<DWORD>(text.size()), &length, nullptr));
    std::erase(text, '\r');
    return text;
  }

 private:
  HANDLE output_ = nullptr;
  PROCESS_INFORMATION process_{};
};

}  // namespace ferrowind::testing
