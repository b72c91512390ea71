#include "bench/own_server.h"

#include <cstddef>
#include <cstdlib>
#include <stdexcept>
#include <vector>

#include <unistd.h>

namespace ferrowind::bench {
namespace {

/// Returns only when that cannot be done.
void StartAgainWithServer(char** argv) {
  std::vector<char*> command;
  std::string script = FERROWIND_WITH_POSTGRES;
  command.push_back(script.data());
  std::vector<char> path(4096);
  const ssize_t size = readlink("/proc/self/exe", path.data(), path.size() - 1);
  if (size <= 0) return;
  path[static_cast<std::size_t>(size)] = '\0';
  command.push_back(path.data());
  for (char** argument = argv + 1; *argument != nullptr; ++argument) command.push_back(*argument);
  command.push_back(nullptr);
  execv(script.c_str(), command.data());
}

}  // namespace

std::string OwnServer(char** argv) {
  constexpr const char* kServerVariable = "FERROWIND_POSTGRES";
  if (std::getenv(kServerVariable) == nullptr) StartAgainWithServer(argv);
  const char* const uri = std::getenv(kServerVariable);
  if (uri == nullptr) throw std::runtime_error("no server of its own could be started");
  return uri;
}

std::string PortIn(const std::string& uri) {
  const auto begin = uri.rfind(':') + 1;
  return uri.substr(begin, uri.find('/', begin) - begin);
}

}  // namespace ferrowind::bench
