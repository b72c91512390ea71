#include "ferrowind/adapters/postgres/connection_refusal.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "ferrowind/adapters/postgres_calls/sql_state.h"

namespace ferrowind::postgres {
namespace {

/// Behind the severity: ":  28P01: ".
constexpr std::string_view kInFront = ":  ";
constexpr std::string_view kBehind = ": ";
constexpr std::size_t kStateSize = 5;

/// "LOCATION:  InitPostgres, postinit.c:813", whose first word is in the user's language.
bool IsPlaceInServer(std::string_view line) {
  const auto colon = line.find(kInFront);
  if (colon == std::string_view::npos) return false;
  const std::string_view place = line.substr(colon + kInFront.size());
  const auto comma = place.find(", ");
  return comma != std::string_view::npos && comma == place.find(' ') - 1 &&
         place.find(".c:", comma) != std::string_view::npos;
}

}  // namespace

bool ConnectionRefusal::IsFull() const {
  if (sqlstate == "53300") return true;
  // A pool gives the number of every refusal of its own to most of them; its texts are not translated.
  constexpr std::string_view kOfPools[] = {"no more connections allowed", "server login has been failing",
                                           "query_wait_timeout"};
  return std::any_of(std::begin(kOfPools), std::end(kOfPools),
                     [this](std::string_view words) { return text.find(words) != std::string::npos; });
}

bool ConnectionRefusal::IsForOthers() const { return sqlstate.empty() || sqlstate == "57P03"; }

bool ConnectionRefusal::IsOfOptions() const {
  return text.find("unsupported startup parameter") != std::string::npos &&
         text.find("options") != std::string::npos;
}

ConnectionRefusal RefusalIn(std::string_view message) {
  std::string_view rest = message;
  ConnectionRefusal refusal;
  std::string kept;
  while (!rest.empty()) {
    const std::size_t end = std::min(rest.find('\n'), rest.size());
    std::string line(rest.substr(0, end));
    rest.remove_prefix(std::min(end + 1, rest.size()));
    if (IsPlaceInServer(line)) continue;
    for (auto at = line.find(kInFront); at != std::string::npos; at = line.find(kInFront, at + 1)) {
      const std::size_t state = at + kInFront.size();
      if (!IsSqlState(std::string_view(line).substr(state, kStateSize)) ||
          line.compare(state + kStateSize, kBehind.size(), kBehind) != 0) {
        continue;
      }
      refusal.sqlstate = line.substr(state, kStateSize);
      line.erase(state, kStateSize + kBehind.size());
      break;
    }
    kept += line + '\n';
  }
  refusal.text = OnOneLine(kept.c_str());
  return refusal;
}

}  // namespace ferrowind::postgres
