#include "ferrowind/adapters/postgres/shown_uri.h"

#include <algorithm>
#include <cstdio>
#include <string_view>
#include <vector>

#include "ferrowind/adapters/postgres/comma_list.h"
#include "ferrowind/adapters/postgres/connection_uri.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::postgres {
namespace {

constexpr std::string_view kHidden = "***";

std::optional<std::vector<UriSetting>> Understood(const std::string& uri) {
  try {
    return SettingsIn(uri);
  } catch (const platform::Failure&) {
    return std::nullopt;
  }
}

bool IsPlain(char character) {
  const bool is_letter = (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
  const bool is_digit = character >= '0' && character <= '9';
  return is_letter || is_digit || std::string_view("-._~").find(character) != std::string_view::npos;
}

/// `also_plain` stands as it is, too.
std::string Encoded(std::string_view text, std::string_view also_plain = "") {
  std::string encoded;
  for (const char character : text) {
    if (IsPlain(character) || also_plain.find(character) != std::string_view::npos) {
      encoded += character;
    } else {
      char escape[4];
      std::snprintf(escape, sizeof escape, "%%%02X", static_cast<unsigned char>(character));
      encoded += escape;
    }
  }
  return encoded;
}

/// A connection string that is put together again from its settings.
class Rebuilt {
 public:
  explicit Rebuilt(std::vector<UriSetting> settings) : settings_(std::move(settings)) {}

  std::string Text() {
    std::string text = "postgresql://" + User() + Hosts();
    if (const auto name = Take("dbname")) text += "/" + Encoded(*name);
    char sign = '?';
    for (const UriSetting& setting : settings_) {
      text +=
          sign + setting.keyword + "=" + (setting.is_secret ? std::string(kHidden) : Encoded(setting.value));
      sign = '&';
    }
    return text;
  }

 private:
  std::optional<std::string> Take(std::string_view keyword) {
    const auto found = std::find_if(settings_.begin(), settings_.end(),
                                    [&](const UriSetting& setting) { return setting.keyword == keyword; });
    if (found == settings_.end()) return std::nullopt;
    std::string value = std::move(found->value);
    settings_.erase(found);
    return value;
  }

  std::string User() {
    const auto user = Take("user");
    const bool has_password = Take("password").has_value();
    if (!user && !has_password) return "";
    return Encoded(user.value_or("")) + (has_password ? ":" + std::string(kHidden) : "") + "@";
  }

  std::string Hosts() {
    const std::string hosts = Take("host").value_or("");
    const std::string ports = Take("port").value_or("");
    const auto host_list = PartsOf(hosts);
    const auto port_list = PartsOf(ports);
    std::string text;
    for (std::size_t i = 0; i < host_list.size(); ++i) {
      const bool is_address = host_list[i].find(':') != std::string_view::npos;
      text += i == 0 ? "" : ",";
      text += is_address ? "[" + Encoded(host_list[i], ":") + "]" : Encoded(host_list[i]);
      // One port is that of all hosts.
      const std::string_view port = i < port_list.size() ? port_list[i] : port_list.front();
      if (!port.empty()) text += ":" + std::string(port);
    }
    return text;
  }

  std::vector<UriSetting> settings_;
};

}  // namespace

std::string WithoutPasswords(const std::string& uri) {
  auto settings = Understood(uri);
  if (!settings) return "postgresql://" + std::string(kHidden);
  const bool has_secret = std::any_of(settings->begin(), settings->end(),
                                      [](const UriSetting& setting) { return setting.is_secret; });
  return has_secret ? Rebuilt(std::move(*settings)).Text() : uri;
}

std::optional<ServerDatabase> ServerDatabaseOf(const std::string& uri) {
  const auto settings = Understood(uri);
  if (!settings) return std::nullopt;
  const auto value_of = [&](std::string_view keyword) {
    const auto found = std::find_if(settings->begin(), settings->end(),
                                    [&](const UriSetting& setting) { return setting.keyword == keyword; });
    return found == settings->end() ? std::string() : found->value;
  };
  std::string server = value_of("host");
  // The folder, or the abstract name, of a socket.
  if (server.starts_with('/') || server.starts_with('@')) server.clear();
  if (server.empty()) server = value_of("hostaddr");
  return ServerDatabase{.server = std::move(server), .name = value_of("dbname")};
}

}  // namespace ferrowind::postgres
