#pragma once

#include <QIcon>

namespace ferrowind::qt {

/// The icon of the program's windows: a calendar sheet on a tile with a colour of its own, since title bars
/// and task bars are light on some desktops and dark on others. Crisp at any size from 16 pixels up.
[[nodiscard]] QIcon ProgramIcon();

}  // namespace ferrowind::qt
