#include "ferrowind/adapters/postgres/connection_uri.h"

#include <algorithm>
#include <charconv>
#include <memory>
#include <optional>
#include <string_view>
#include <system_error>

#include <libpq-fe.h>

#include "ferrowind/adapters/postgres/engine.h"
#include "ferrowind/platform/database/connection_scheme.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::postgres {
namespace {

platform::Failure NotUnderstood(const std::string& why) {
  return {platform::failure_number::kInvalidArgument, "The connection string of the database server " + why};
}

/// What stands behind "postgresql://" or "postgres://".
std::string_view BehindScheme(std::string_view text) {
  constexpr std::string_view kSlashes = "//";
  for (const char* scheme : {Engine::kScheme, Engine::kShortScheme}) {
    const auto behind = platform::BehindScheme(text, scheme);
    if (behind && behind->starts_with(kSlashes)) return behind->substr(kSlashes.size());
  }
  throw NotUnderstood("does not begin with postgresql://");
}

void RefuseMisplacedSigns(std::string_view text) {
  const auto at = text.rfind('@');
  if (at == std::string_view::npos) return;
  if (text.find_first_of("@/?") != at) {
    throw NotUnderstood(
        "has an \"@\" too many, or a \"/\" or \"?\" in front of it: within a name or a password these are "
        "written %40, %2F and %3F");
  }
}

/// libpq would print a port that is none.
void RefuseWrongPort(std::string_view ports) {
  if (ports.find_first_not_of("0123456789,") != std::string_view::npos) {
    throw NotUnderstood("has a port that is no number; a password stands between the user's name and \"@\"");
  }
}

struct OptionsFree {
  void operator()(PQconninfoOption* options) const { PQconninfoFree(options); }
};

/// libpq marks what a form would not show while it is typed, but not the keys that newer ones take in place
/// of a password; others it may come to know tell by their names.
bool IsSecret(const PQconninfoOption& option) {
  const std::string_view keyword = option.keyword;
  return std::string_view(option.dispchar) == "*" || keyword.starts_with("scram_") ||
         keyword.find("password") != std::string_view::npos ||
         keyword.find("secret") != std::string_view::npos;
}

/// A URI as libpq knows it, and what stood in it for this adapter.
struct SplitUri {
  std::string text;
  std::optional<std::string> call_timeout = std::nullopt;
  std::optional<std::string> keep_sessions = std::nullopt;
};

/// Of several values the last one holds, as with libpq's own keywords.
SplitUri TakeOwnKeywords(const std::string& uri) {
  SplitUri taken;
  const auto query = uri.find('?');
  taken.text = uri.substr(0, query);
  if (query == std::string::npos) return taken;
  const auto take = [](const std::string& parameter, const char* keyword, std::optional<std::string>& value) {
    const std::string beginning = std::string(keyword) + "=";
    if (!parameter.starts_with(beginning)) return false;
    value = parameter.substr(beginning.size());
    return true;
  };
  char sign = '?';
  for (std::size_t at = query + 1; at <= uri.size();) {
    const std::size_t end = std::min(uri.find('&', at), uri.size());
    const std::string parameter = uri.substr(at, end - at);
    at = end + 1;
    if (take(parameter, kCallTimeout, taken.call_timeout)) continue;
    if (take(parameter, kKeepSessions, taken.keep_sessions)) continue;
    taken.text += sign + parameter;
    sign = '&';
  }
  return taken;
}

std::chrono::seconds CallTimeoutIn(std::string_view text) {
  constexpr int kMost = 600;
  int seconds = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), seconds);
  if (error != std::errc() || end != text.data() + text.size() || seconds < 1 || seconds > kMost) {
    throw NotUnderstood("has a call_timeout that is no whole number of seconds from 1 to 600");
  }
  return std::chrono::seconds(seconds);
}

SessionKeeping KeepingIn(std::string_view text) {
  if (text == "yes") return SessionKeeping::kAlways;
  if (text == "no") return SessionKeeping::kNever;
  throw NotUnderstood("has a keep_sessions that is neither yes nor no");
}

}  // namespace

std::vector<UriSetting> SettingsIn(const std::string& text) {
  const std::string_view behind_scheme = BehindScheme(text);
  RefuseMisplacedSigns(behind_scheme);
  if (text.find('\0') != std::string::npos) throw NotUnderstood("holds the character NUL");
  // libpq knows its scheme in small letters alone.
  const SplitUri known = TakeOwnKeywords(std::string(Engine::kScheme) + "://" + std::string(behind_scheme));
  char* error = nullptr;
  const std::unique_ptr<PQconninfoOption, OptionsFree> options(PQconninfoParse(known.text.c_str(), &error));
  // Its text may quote the whole string.
  PQfreemem(error);
  if (!options) throw NotUnderstood("is not a URI that the PostgreSQL library understands");
  std::vector<UriSetting> settings;
  for (const PQconninfoOption* option = options.get(); option->keyword != nullptr; ++option) {
    if (option->val == nullptr) continue;
    if (std::string_view(option->keyword) == "port") RefuseWrongPort(option->val);
    settings.push_back({option->keyword, option->val, IsSecret(*option)});
  }
  if (known.call_timeout) {
    (void)CallTimeoutIn(*known.call_timeout);
    settings.push_back({kCallTimeout, *known.call_timeout});
  }
  if (known.keep_sessions) {
    (void)KeepingIn(*known.keep_sessions);
    settings.push_back({kKeepSessions, *known.keep_sessions});
  }
  return settings;
}

ConnectionUri::ConnectionUri(const std::string& text) {
  for (const UriSetting& setting : SettingsIn(text)) {
    if (setting.keyword == kCallTimeout) {
      call_timeout_ = CallTimeoutIn(setting.value);
    } else if (setting.keyword == kKeepSessions) {
      keeping_ = KeepingIn(setting.value);
    } else {
      Set(setting.keyword.c_str(), setting.value.c_str());
    }
  }
  Set("client_encoding", "UTF8");
  SetDefault("fallback_application_name", "Ferrowind");
  // In seconds; the last one, which is for data that the server does not acknowledge, in milliseconds.
  SetDefault("connect_timeout", "10");
  SetDefault("keepalives_idle", "10");
  SetDefault("keepalives_interval", "5");
  SetDefault("keepalives_count", "4");
  SetDefault("tcp_user_timeout", "30000");
}

void ConnectionUri::Set(const char* keyword, const char* value) {
  std::erase_if(settings_, [&](const auto& setting) { return setting.first == keyword; });
  settings_.emplace_back(keyword, value);
}

void ConnectionUri::SetDefault(const char* keyword, const char* value) {
  const bool is_set = std::any_of(settings_.begin(), settings_.end(),
                                  [&](const auto& setting) { return setting.first == keyword; });
  if (!is_set) settings_.emplace_back(keyword, value);
}

std::string ConnectionUri::ValueOf(std::string_view keyword) const {
  const auto found = std::find_if(settings_.begin(), settings_.end(),
                                  [&](const auto& setting) { return setting.first == keyword; });
  return found == settings_.end() ? std::string() : found->second;
}

ConnectionArguments::ConnectionArguments(const ConnectionSettings& settings) {
  for (const auto& [keyword, value] : settings) {
    keywords_.push_back(keyword.c_str());
    values_.push_back(value.c_str());
  }
  keywords_.push_back(nullptr);
  values_.push_back(nullptr);
}

}  // namespace ferrowind::postgres
