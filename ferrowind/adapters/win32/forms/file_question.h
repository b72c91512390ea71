#pragma once

#include <optional>
#include <string>
#include <vector>

#include "ferrowind/adapters/win32/base/window_thread.h"
#include "ferrowind/platform/toolkit/toolkit.h"

namespace ferrowind::win32 {

///@{
/// As `platform::Toolkit::ChooseFileToSave` and `ChooseFileToOpen`.
[[nodiscard]] std::optional<std::string> AskForFileToSave(WindowThread& thread, const std::string& title,
                                                          const std::string& suggested_name,
                                                          const std::vector<platform::FileKind>& kinds);
[[nodiscard]] std::optional<std::string> AskForFileToOpen(WindowThread& thread, const std::string& title,
                                                          const std::string& caption,
                                                          const std::vector<std::string>& suffixes);
///@}

}  // namespace ferrowind::win32
