#pragma once

#include <functional>

namespace ferrowind {

/// Runs the body of an event handler. A failure that leaves the body is reported to the operator, behind
/// whatever was pending before it; nothing is thrown, so that no exception reaches the toolkit's event loop.
void RunHandler(const std::function<void()>& body) noexcept;

}  // namespace ferrowind
