#include "host/session/private_arguments.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "host/session/shown_connection.h"

namespace ferrowind::host {
namespace {

constexpr const char* kPasswordVariable = "PGPASSWORD";

/// Writes `text` over what `place` holds, as far as it has room, and nothing behind it.
void Overwrite(char* place, const std::string& text) {
  const std::size_t room = std::strlen(place);
  const std::size_t length = std::min(room, text.size());
  std::memcpy(place, text.data(), length);
  std::memset(place + length, 0, room - length);
}

void HidePasswordVariable() {
  char* const shown = std::getenv(kPasswordVariable);
  if (shown == nullptr) return;
  // The system shows the place of the first value. A value that is set lies elsewhere.
  const std::string password = shown;
  if (setenv(kPasswordVariable, password.c_str(), 1) == 0 && std::getenv(kPasswordVariable) != shown) {
    Overwrite(shown, "");
  }
}

}  // namespace

PrivateArguments::PrivateArguments(int argc, char** argv) : texts_(argv, argv + argc), count_(argc) {
  for (std::string& text : texts_) pointers_.push_back(text.data());
  pointers_.push_back(nullptr);
  for (std::size_t i = 0; i < texts_.size(); ++i) {
    const std::string free = ShownConnection(texts_[i]);
    if (free != texts_[i]) Overwrite(argv[i], free);
  }
  HidePasswordVariable();
}

std::vector<std::string> PrivateArguments::BehindName() const {
  return {texts_.begin() + (texts_.empty() ? 0 : 1), texts_.end()};
}

}  // namespace ferrowind::host
