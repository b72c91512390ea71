#pragma once

#include <QIcon>
#include <string>

namespace ferrowind::qt {

/// The tree image of that key ("Currency", "Calendar"); a null icon for any other.
[[nodiscard]] QIcon TreeImage(const std::string& key);

}  // namespace ferrowind::qt
