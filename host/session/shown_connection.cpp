#include "host/session/shown_connection.h"

#include <algorithm>

#include "ferrowind/adapters/postgres/engine.h"
#include "ferrowind/adapters/postgres/shown_uri.h"
#include "ferrowind/adapters/services/password_free.h"

namespace ferrowind::host {

std::string ShownConnection(const std::string& text) {
  const auto find = [&](const char* scheme) { return text.find(std::string(scheme) + ":"); };
  const std::size_t uri = std::min(find(postgres::Engine::kScheme), find(postgres::Engine::kShortScheme));
  if (uri == std::string::npos) return PasswordFree(text);
  return PasswordFree(text.substr(0, uri)) + postgres::WithoutPasswords(text.substr(uri));
}

}  // namespace ferrowind::host
