#include "ferrowind/adapters/win32/base/run_guarded.h"

#include <exception>

#include "ferrowind/adapters/win32/base/wide_text.h"
#include "ferrowind/adapters/win32/base/windows_api.h"

namespace ferrowind::win32 {
namespace {

void Tell(const std::string& element, const std::string& what) noexcept {
  try {
    OutputDebugStringW(ToWide("ferrowind.events: a handler of " + element + " failed" + what + "\n").c_str());
  } catch (...) {
    OutputDebugStringW(L"ferrowind.events: a handler failed\n");
  }
}

}  // namespace

void RunGuarded(const std::string& element, const std::function<void()>& handler) noexcept {
  try {
    handler();
  } catch (const std::exception& error) {
    Tell(element, std::string(": ") + error.what());
  } catch (...) {
    Tell(element, "");
  }
}

}  // namespace ferrowind::win32
