#pragma once

#include <utility>

#include <unknwn.h>

#include "ferrowind/adapters/automation/com_pointer.h"

namespace ferrowind::automation {

/// What a host gets for the exception that is being handled: its HRESULT, with the number and the
/// description as the thread's error information and no source. The platform's own errors, which have small
/// numbers, are 0x800A0000 and their number, as hosts know them.
[[nodiscard]] HRESULT TellFailureBeingHandled(REFIID interface_id) noexcept;

/// Runs what a host called. Nothing is thrown; the object stays until the call is over, whoever releases it
/// meanwhile.
template <typename Body>
[[nodiscard]] HRESULT Guarded(IUnknown* object, REFIID interface_id, Body&& body) noexcept {
  const ComPointer<IUnknown> kept(object);
  try {
    std::forward<Body>(body)();
    return S_OK;
  } catch (...) {
    return TellFailureBeingHandled(interface_id);
  }
}

}  // namespace ferrowind::automation
