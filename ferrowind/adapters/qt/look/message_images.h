#pragma once

#include <QIcon>

namespace ferrowind::qt {

enum class MessageKind { kQuestion, kInformation, kWarning, kError };

/// The image beside a message of that kind, in the colours of the theme; crisp at any size and resolution.
[[nodiscard]] QIcon MessageImage(MessageKind kind);

}  // namespace ferrowind::qt
