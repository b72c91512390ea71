#pragma once

#include <functional>

#include "ferrowind/platform/platform.h"

namespace ferrowind {

/// Runs the body of an event handler. A failure that leaves the body is reported to the operator, behind
/// whatever was pending before it; nothing is thrown, so that no exception reaches the toolkit's event loop.
/// An `Interruption` ends the handler without a report: the window that it ran for is gone.
void RunHandler(const std::function<void()>& body) noexcept;

/// Runs the body in those surroundings, as every handler of a window's events has to.
void RunHandler(const platform::Platform& platform, const std::function<void()>& body) noexcept;

/// Runs one step of a handler, whose failure is reported like that of a handler and does not keep the next
/// step from running. Only an `Interruption`, of the step or of its report, is thrown on: it ends the
/// handler.
void RunStep(const std::function<void()>& step);

}  // namespace ferrowind
