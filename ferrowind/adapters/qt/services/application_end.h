#pragma once

namespace ferrowind::qt {

/// Whether the application was told to exit and its event loops are unwinding: none can be entered any more
/// on this, the user-interface thread. Handles events that wait, save the operator's input.
[[nodiscard]] bool IsApplicationEnding();

}  // namespace ferrowind::qt
