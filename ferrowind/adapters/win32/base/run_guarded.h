#pragma once

#include <functional>
#include <string>

namespace ferrowind::win32 {

/// Runs an event handler on behalf of the message loop. Handlers must not throw; what one throws all the same
/// is told to the debugger with the element's name and goes no further, since it would end the host.
void RunGuarded(const std::string& element, const std::function<void()>& handler) noexcept;

}  // namespace ferrowind::win32
