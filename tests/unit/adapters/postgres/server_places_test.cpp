// The servers of a connection string, one by one.

#include "ferrowind/adapters/postgres/server_places.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "ferrowind/adapters/postgres/dead_places.h"

namespace ferrowind::postgres {
namespace {

using ::testing::ElementsAre;

std::vector<ServerPlace> Places(const std::string& text) { return PlacesOf(ConnectionUri(text)); }

std::vector<std::string> NamesOf(const std::vector<ServerPlace>& places) {
  std::vector<std::string> names;
  names.reserve(places.size());
  for (const ServerPlace& place : places) names.push_back(place.name);
  return names;
}

std::string Setting(const ServerPlace& place, const std::string& keyword) {
  for (const auto& [key, value] : place.settings) {
    if (key == keyword) return value;
  }
  return "none";
}

TEST(ServerPlaces, AreThoseOfASchemeOfAnyLetterCase) {
  for (const char* text : {"POSTGRESQL://a:1/db", "Postgres://a:1/db", "postgres://a:1/db"}) {
    EXPECT_THAT(NamesOf(Places(text)), ElementsAre("a:1")) << text;
  }
}

TEST(ServerPlaces, EachHostIsOneWithItsPort) {
  const auto places = Places("postgresql://a:1,b,[::1]:3/db?sslmode=require");
  EXPECT_THAT(NamesOf(places), ElementsAre("a:1", "b", "::1:3"));
  EXPECT_EQ(Setting(places[0], "host"), "a");
  EXPECT_EQ(Setting(places[0], "port"), "1");
  EXPECT_EQ(Setting(places[1], "port"), "");
  EXPECT_EQ(Setting(places[2], "host"), "::1");
  EXPECT_EQ(Setting(places[2], "sslmode"), "require");
}

TEST(ServerPlaces, OnePortIsThatOfAllHosts) {
  EXPECT_THAT(NamesOf(Places("postgresql:///db?host=a,b&port=7")), ElementsAre("a:7", "b:7"));
}

TEST(ServerPlaces, AnAddressStandsForItsHost) {
  const auto places = Places("postgresql:///db?host=a,b&hostaddr=10.0.0.1,10.0.0.2");
  EXPECT_THAT(NamesOf(places), ElementsAre("a", "b"));
  EXPECT_EQ(Setting(places[1], "hostaddr"), "10.0.0.2");
  EXPECT_THAT(NamesOf(Places("postgresql:///db?hostaddr=10.0.0.1,10.0.0.2")),
              ElementsAre("10.0.0.1", "10.0.0.2"));
}

TEST(ServerPlaces, WhatNamesNoHostOrDoesNotFitIsLeftToTheLibrary) {
  EXPECT_THAT(NamesOf(Places("postgresql:///db")), ElementsAre(""));
  const auto places = Places("postgresql:///db?host=a,b&port=1,2,3");
  EXPECT_THAT(NamesOf(places), ElementsAre(""));
  EXPECT_EQ(Setting(places[0], "port"), "1,2,3");
}

TEST(ServerPlaces, APreferredStandbyIsLookedForEverywhereFirst) {
  const auto places = Places("postgresql://a,b/db?target_session_attrs=prefer-standby");
  EXPECT_THAT(NamesOf(places), ElementsAre("a", "b", "a", "b"));
  EXPECT_EQ(Setting(places[1], "target_session_attrs"), "standby");
  EXPECT_EQ(Setting(places[2], "target_session_attrs"), "any");
}

TEST(DeadPlaces, StandBehindTheOthersUntilTheyAnswer) {
  DeadPlaces dead;
  const auto order = [&] {
    auto places = Places("postgresql://a,b,c/db");
    dead.PutLast(places);
    return NamesOf(places);
  };
  EXPECT_THAT(order(), ElementsAre("a", "b", "c"));
  dead.Add("a");
  EXPECT_THAT(order(), ElementsAre("b", "c", "a"));
  dead.Add("b");
  EXPECT_THAT(order(), ElementsAre("c", "a", "b"));
  dead.Remove("a");
  EXPECT_THAT(order(), ElementsAre("a", "c", "b"));
}

}  // namespace
}  // namespace ferrowind::postgres
