#pragma once

#include <QString>

#include "ferrowind/platform/toolkit/table.h"

namespace ferrowind::qt {

/// The word for a mark in the operator's language; empty for none.
[[nodiscard]] QString MarkWord(platform::CellMark mark);

/// What a cell says to who cannot see its mark: the word for it and the text, once where the text has it.
[[nodiscard]] QString SpokenText(const platform::TableCell& cell);

}  // namespace ferrowind::qt
