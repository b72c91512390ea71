#pragma once

#include <QString>

namespace ferrowind::qt {

/// The context in which the translators of the application have the component's texts.
inline constexpr const char* kTextContext = "ferrowind";

/// An English text of an adapter in the language of the translators that the application has installed; the
/// text itself without one. Its places "%1", "%2" ... are kept for `QString::arg`.
[[nodiscard]] QString Translated(const char* english);

}  // namespace ferrowind::qt
