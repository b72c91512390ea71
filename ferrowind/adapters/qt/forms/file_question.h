#pragma once

#include <QString>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/platform/toolkit/toolkit.h"

namespace ferrowind::qt {

/// The question of `Toolkit::ChooseFileToSave`, which begins in `folder`, or where documents lie when that is
/// empty.
[[nodiscard]] std::optional<QString> AskForFileToSave(const QString& title, const QString& suggested_name,
                                                      const std::vector<platform::FileKind>& kinds,
                                                      const QString& folder);

/// The question of `Toolkit::ChooseFileToOpen`, which begins there, too.
[[nodiscard]] std::optional<QString> AskForFileToOpen(const QString& title, const QString& caption,
                                                      const std::vector<std::string>& suffixes,
                                                      const QString& folder);

}  // namespace ferrowind::qt
