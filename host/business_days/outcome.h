#pragma once

#include <string_view>

#include "host/business_days/ferrowind_business_days.h"

/// What becomes of exceptions in a library that none may leave.
namespace ferrowind::host {

/// The text of this thread's last failure.
[[nodiscard]] const char* LastMessage() noexcept;

/// To be called while an exception is handled: its status, and its text as the thread's message.
[[nodiscard]] ferrowind_bd_status StatusOfException() noexcept;

/// Does what is asked.
template <typename Action>
[[nodiscard]] ferrowind_bd_status Outcome(Action action) noexcept {
  try {
    action();
    return FERROWIND_BD_OK;
  } catch (...) {
    return StatusOfException();
  }
}

/// The failure InvalidArgument.
[[noreturn]] void FailInvalid(std::string_view description);
[[noreturn]] void FailNull(std::string_view name);

/// What the pointer leads to; without one the failure InvalidArgument, which names it.
template <typename Pointed>
[[nodiscard]] Pointed& Required(Pointed* pointer, std::string_view name) {
  if (pointer == nullptr) FailNull(name);
  return *pointer;
}

}  // namespace ferrowind::host
