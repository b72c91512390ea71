#include "ferrowind/adapters/postgres/server_places.h"

#include <algorithm>
#include <cstddef>
#include <random>
#include <string_view>

#include "ferrowind/adapters/postgres/comma_list.h"

namespace ferrowind::postgres {
namespace {

constexpr std::string_view kHost = "host";
constexpr std::string_view kAddress = "hostaddr";
constexpr std::string_view kPort = "port";
constexpr std::string_view kAttributes = "target_session_attrs";

void Replace(ConnectionSettings& settings, std::string_view keyword, std::string_view value) {
  for (auto& [key, old] : settings) {
    if (key == keyword) old = value;
  }
}

std::string_view PartAt(const std::vector<std::string_view>& parts, std::size_t position) {
  return parts.size() == 1 ? parts.front() : parts[position];
}

}  // namespace

std::vector<ServerPlace> PlacesOf(const ConnectionUri& uri) {
  const std::string host_list = uri.ValueOf(kHost);
  const std::string address_list = uri.ValueOf(kAddress);
  const std::string port_list = uri.ValueOf(kPort);
  const auto hosts = PartsOf(host_list);
  const auto addresses = PartsOf(address_list);
  const auto ports = PartsOf(port_list);
  const std::size_t count = std::max(hosts.size(), addresses.size());
  const auto fits = [&](const std::string& list, const std::vector<std::string_view>& parts) {
    return list.empty() || parts.size() == count;
  };
  const bool is_named = !host_list.empty() || !address_list.empty();
  if (!is_named || !fits(host_list, hosts) || !fits(address_list, addresses) ||
      (ports.size() != 1 && ports.size() != count)) {
    return {{"", uri.Settings()}};
  }
  std::vector<ServerPlace> places;
  for (std::size_t i = 0; i < count; ++i) {
    const std::string_view host = PartAt(hosts, i);
    const std::string_view address = PartAt(addresses, i);
    const std::string_view port = PartAt(ports, i);
    ServerPlace place{std::string(host.empty() ? address : host), uri.Settings()};
    if (!port.empty()) place.name += ":" + std::string(port);
    Replace(place.settings, kHost, host);
    Replace(place.settings, kAddress, address);
    Replace(place.settings, kPort, port);
    places.push_back(std::move(place));
  }
  // Newer versions of libpq know it; here they are given one host at a time.
  if (uri.ValueOf("load_balance_hosts") == "random") {
    std::shuffle(places.begin(), places.end(), std::minstd_rand(std::random_device()()));
  }
  if (uri.ValueOf(kAttributes) == "prefer-standby") {
    auto others = places;
    for (ServerPlace& place : places) Replace(place.settings, kAttributes, "standby");
    for (ServerPlace& place : others) Replace(place.settings, kAttributes, "any");
    places.insert(places.end(), others.begin(), others.end());
  }
  return places;
}

}  // namespace ferrowind::postgres
