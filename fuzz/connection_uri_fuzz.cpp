// Reads the input as a connection string of a server: whatever it is, it is refused without a part of it
// being repeated, or what is shown of it says the same of the server and holds none of its passwords.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ferrowind/adapters/postgres/connection_uri.h"
#include "ferrowind/adapters/postgres/shown_uri.h"
#include "ferrowind/adapters/services/password_free.h"
#include "ferrowind/platform/values/failure.h"

#include "fuzz/expectation.h"

namespace {

using ferrowind::fuzz::Expect;
using ferrowind::platform::Failure;
using ferrowind::postgres::UriSetting;

constexpr std::string_view kHidden = "***";

std::optional<std::vector<UriSetting>> TrySettings(const std::string& text) {
  try {
    return ferrowind::postgres::SettingsIn(text);
  } catch (const Failure& failure) {
    static std::set<std::string> refusals;
    refusals.insert(failure.Description());
    constexpr std::size_t kReasons = 8;
    Expect(refusals.size() <= kReasons, "a refusal is one of few sentences, and so repeats nothing");
    return std::nullopt;
  }
}

std::size_t PartsOf(const std::vector<UriSetting>& settings, std::string_view keyword) {
  for (const UriSetting& setting : settings) {
    if (setting.keyword == keyword) {
      return static_cast<std::size_t>(std::count(setting.value.begin(), setting.value.end(), ',')) + 1;
    }
  }
  return 1;
}

/// Otherwise the one port is shown with each host, and lists that do not match connect to nothing.
bool HasAPortForEachHost(const std::vector<UriSetting>& settings) {
  return PartsOf(settings, "port") == PartsOf(settings, "host");
}

/// A setting that is empty says no more than one that is not there.
std::vector<UriSetting> Telling(std::vector<UriSetting> settings) {
  std::erase_if(settings,
                [](const UriSetting& setting) { return !setting.is_secret && setting.value.empty(); });
  return settings;
}

void ExpectShown(const std::string& text, const std::vector<UriSetting>& all) {
  const std::string shown = ferrowind::postgres::WithoutPasswords(text);
  const auto shown_settings = TrySettings(shown);
  Expect(shown_settings.has_value(), "what is shown is a connection string");
  const auto settings = Telling(all);
  const auto again = Telling(*shown_settings);
  Expect(again.size() == settings.size(), "what is shown has the same settings");
  for (std::size_t i = 0; i < settings.size(); ++i) {
    const UriSetting& was = settings[i];
    const UriSetting& is = again[i];
    Expect(is.keyword == was.keyword && is.is_secret == was.is_secret, "a setting stays what it is");
    Expect(is.value == (was.is_secret ? kHidden : std::string_view(was.value)), "only passwords are hidden");
  }
  Expect(ferrowind::postgres::WithoutPasswords(shown) == shown, "what is shown has nothing to hide");
}

/// A password that stands in the text as it is, once, is in no text for people.
void ExpectNoPasswordInFreeText(const std::string& text, const std::vector<UriSetting>& settings) {
  constexpr std::size_t kTellingLength = 4;
  const std::string free = ferrowind::PasswordFree(text);
  for (const UriSetting& setting : settings) {
    if (!setting.is_secret || setting.value.size() < kTellingLength || setting.value == kHidden) continue;
    // What nobody sees, nobody reads.
    if (setting.value.find_first_not_of(" \t\r\n\v\f") == std::string::npos) continue;
    const auto place = text.find(setting.value);
    if (place == std::string::npos || text.find(setting.value, place + 1) != std::string::npos) continue;
    Expect(free.find(setting.value) == std::string::npos, "a text for people has no password in it");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(data, data + size);
  const auto settings = TrySettings(text);
  const auto place = ferrowind::postgres::ServerDatabaseOf(text);
  Expect(place.has_value() == settings.has_value(),
         "a connection string that is understood names a database");
  if (!settings) {
    Expect(ferrowind::postgres::WithoutPasswords(text) == "postgresql://***",
           "of a connection string that is not understood nothing is shown");
    return 0;
  }
  if (HasAPortForEachHost(*settings)) ExpectShown(text, *settings);
  ExpectNoPasswordInFreeText(text, *settings);
  const ferrowind::postgres::ConnectionUri uri(text);
  Expect(std::count(uri.Settings().begin(), uri.Settings().end(),
                    std::pair<std::string, std::string>("client_encoding", "UTF8")) == 1,
         "texts come as UTF-8 whatever the connection string says");
  return 0;
}
