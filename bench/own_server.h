#pragma once

#include <string>

namespace ferrowind::bench {

/// The URI of the superuser of a server that this process has for itself and that ends with it. Without one,
/// runs this program again beside a new server and does not return; throws std::runtime_error when none can
/// be started. `argv` is that of `main`.
[[nodiscard]] std::string OwnServer(char** argv);

/// The port in the URI of that server.
[[nodiscard]] std::string PortIn(const std::string& uri);

}  // namespace ferrowind::bench
