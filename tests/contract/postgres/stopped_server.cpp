#include "tests/contract/postgres/stopped_server.h"

#include <cerrno>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <system_error>

#include "ferrowind/adapters/postgres/server_connection.h"

#include "tests/contract/postgres/postgres_server.h"

namespace ferrowind::contract {
namespace {

/// 0 for a process that is gone.
pid_t ParentOf(const std::string& process) {
  std::ifstream file("/proc/" + process + "/stat");
  std::string text;
  std::getline(file, text);
  // "PID (NAME) STATE PARENT ...", where the name may hold anything.
  const auto behind_name = text.rfind(") ");
  return behind_name == std::string::npos ? 0 : std::stoi(text.substr(behind_name + 4));
}

std::vector<pid_t> ChildrenOf(pid_t parent) {
  std::vector<pid_t> children;
  for (const auto& entry : std::filesystem::directory_iterator("/proc")) {
    const std::string name = entry.path().filename();
    if (name.find_first_not_of("0123456789") != std::string::npos) continue;
    if (ParentOf(name) == parent) children.push_back(std::stoi(name));
  }
  return children;
}

/// The parent of all that are connected.
pid_t ServerProcess() {
  postgres::ServerConnection connection(postgres_server::SuperuserUri());
  return ParentOf(std::to_string(PQbackendPID(connection.Get())));
}

}  // namespace

StoppedServer::StoppedServer(Extent extent) {
  const pid_t server = ServerProcess();
  if (server == 0) throw std::runtime_error("the server's process is not found");
  stopped_.push_back(server);
  if (kill(server, SIGSTOP) != 0) throw std::system_error(errno, std::generic_category(), "SIGSTOP");
  if (extent == Extent::kNewConnections) return;
  for (const pid_t child : ChildrenOf(server)) {
    if (kill(child, SIGSTOP) == 0) stopped_.push_back(child);
  }
}

StoppedServer::~StoppedServer() {
  for (const pid_t process : stopped_) kill(process, SIGCONT);
}

}  // namespace ferrowind::contract
