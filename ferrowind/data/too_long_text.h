#pragma once

#include <optional>

#include "ferrowind/data/source_values.h"
#include "ferrowind/platform/values/phrase.h"

namespace ferrowind {

/// The first text among the parameters of a call that is longer than procedures take (text_limits.h), also in
/// the list of a plan's days or of a book's rules: which one, how long it is and how long it may be, in a
/// sentence without a full stop. Nothing when none is.
[[nodiscard]] std::optional<platform::Phrase> TooLongText(const SourceValues& parameters);

}  // namespace ferrowind
