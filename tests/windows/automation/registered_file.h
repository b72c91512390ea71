#pragma once

#include <windows.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/automation/com_pointer.h"

#include "generated/ferrowind.h"
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

/// A control, as hosts that were built against its class create it.
[[nodiscard]] inline automation::ComPointer<_Calendar> CreateByName() {
  CLSID class_id{};
  EXPECT_EQ(CLSIDFromProgID(L"Ferrowind.Calendar", &class_id), S_OK);
  automation::ComPointer<_Calendar> control;
  EXPECT_EQ(
      CoCreateInstance(class_id, nullptr, CLSCTX_INPROC_SERVER, __uuidof(_Calendar), control.ReceiveAny()),
      S_OK);
  return control;
}

}  // namespace ferrowind::testing
