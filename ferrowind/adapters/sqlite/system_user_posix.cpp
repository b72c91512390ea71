#include <vector>

#include <pwd.h>
#include <unistd.h>

#include "ferrowind/adapters/sqlite/posix_user.h"
#include "ferrowind/adapters/sqlite/system_user.h"

namespace ferrowind::sqlite {

std::string UserName(uid_t user) {
  passwd entry{};
  passwd* found = nullptr;
  // Entries are small; one that needs more is shown by its number.
  std::vector<char> room(16384);
  if (getpwuid_r(user, &entry, room.data(), room.size(), &found) != 0 || found == nullptr ||
      *found->pw_name == '\0') {
    return std::to_string(user);
  }
  return found->pw_name;
}

const std::string& SystemUserName() {
  // Asked once: the directory of users may be far away, and a program stays its user's.
  static const std::string name = UserName(getuid());
  return name;
}

}  // namespace ferrowind::sqlite
