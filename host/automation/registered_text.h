#pragma once

#include <optional>
#include <string>

namespace ferrowind::host {

/// What an administrator, or a host, has written for the component: a text of the component's key in the
/// registry, the present user's or else the machine's. Nothing where neither has one, or only an empty one.
[[nodiscard]] std::optional<std::string> RegisteredText(const std::wstring& name);

}  // namespace ferrowind::host
