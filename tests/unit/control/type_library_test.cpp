#include "ferrowind/control/type_library.h"

#include <map>
#include <regex>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

#include "ferrowind/control/calendar.h"
#include "ferrowind/platform/values/value.h"
#include "ferrowind/version.h"

namespace ferrowind::type_library {
namespace {

TEST(TypeLibrary, EveryIdentifierIsInRegistryFormAndStandsForOneThing) {
  const std::regex registry_form(R"(\{[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}\})");
  std::set<std::string> seen;
  for (const auto& described : kClasses) {
    for (const char* id : {described.class_id, described.interface_id, described.events_id}) {
      if (id == nullptr) continue;
      EXPECT_TRUE(std::regex_match(id, registry_form)) << id;
      EXPECT_TRUE(seen.insert(id).second) << id;
    }
  }
  EXPECT_EQ(seen.size(), 8u);
}

TEST(TypeLibrary, IsTheOneThatHostsWereBuiltAgainst) {
  EXPECT_STREQ(kName, "Ferrowind");
  EXPECT_STREQ(kCalendarProgrammaticIdentifier, "Ferrowind.Calendar");
  EXPECT_STREQ(kFileVersion, "1.2.0.10");
  std::map<std::string, std::string> identifiers;
  for (const auto& described : kClasses) {
    identifiers[described.name] = described.class_id;
    identifiers[described.interface_name] = described.interface_id;
    if (described.events_name != nullptr) identifiers[described.events_name] = described.events_id;
  }
  const std::map<std::string, std::string> expected = {
      {"Calendar", "{DED80419-449B-11D6-8AE6-0050228F1EE8}"},
      {"_Calendar", "{03C0325A-44B4-11D6-8AE6-0050228F1EE8}"},
      {"__Calendar", "{03C0325B-44B4-11D6-8AE6-0050228F1EE8}"},
      {"GridFields", "{DED80413-449B-11D6-8AE6-0050228F1EE8}"},
      {"_GridFields", "{03C03052-44B4-11D6-8AE6-0050228F1EE8}"},
      {"GridField", "{DED80410-449B-11D6-8AE6-0050228F1EE8}"},
      {"_GridField", "{03C03050-44B4-11D6-8AE6-0050228F1EE8}"},
      {"__GridField", "{03C03051-44B4-11D6-8AE6-0050228F1EE8}"},
  };
  EXPECT_EQ(identifiers, expected);
}

TEST(TypeLibrary, HasOneVersionWhichTheControlAndTheFileTell) {
  const auto version = Calendar::Version();
  EXPECT_EQ(version[1], platform::Value(kMajorVersion));
  EXPECT_EQ(version[2], platform::Value(kMinorVersion));
  EXPECT_EQ(version[3], platform::Value(kRevision));
  const auto text = [](int number) { return std::to_string(number); };
  EXPECT_EQ(text(kMajorVersion) + "." + text(kMinorVersion) + ".0." + text(kRevision), kFileVersion);
}

/// A later release has a later number, and the interface the one that hosts were built against.
TEST(TypeLibrary, HasAVersionOfItsOwnThatNoReleaseMoves) {
  EXPECT_EQ(std::tuple(kMajorVersion, kMinorVersion, kRevision), std::tuple(1, 2, 10));
  EXPECT_GE(std::tuple(FERROWIND_VERSION_MAJOR, FERROWIND_VERSION_MINOR, FERROWIND_VERSION_PATCH),
            std::tuple(1, 2, 10));
}

TEST(TypeLibrary, MembersKeepTheirKindsDispatchIdentifiersAndSlots) {
  using enum MemberKind;
  using Slot = std::tuple<std::string, std::string, MemberKind, std::uint32_t>;
  std::vector<Slot> slots;
  for (const auto& member : kMembers) {
    slots.emplace_back(member.interface_name, member.name, member.kind, member.dispatch_id);
  }
  const std::vector<Slot> expected = {
      {"_Calendar", "ForceClosing", kMethod, 0x60030002},
      {"_Calendar", "Show", kMethod, 0x60030003},
      {"_Calendar", "Headers", kPropertyGet, 0x68030001},
      {"_Calendar", "HolidayHeaders", kPropertyGet, 0x68030000},
      {"_Calendar", "Version", kPropertyGet, 0x68030004},
      {"_GridFields", "Add", kMethod, 0x60030001},
      {"_GridFields", "LocalNames", kMethod, 0x60030002},
      {"_GridFields", "Fields", kMethod, 0x60030003},
      {"_GridFields", "RemoveByLocalIndex", kMethod, 0x60030004},
      {"_GridFields", "RemoveByFieldIndex", kMethod, 0x60030005},
      {"_GridFields", "Clear", kMethod, 0x60030006},
      {"_GridFields", "Count", kPropertyGet, 0x68030000},
      {"_GridField", "FieldName", kPropertyGetPut, 0x40030002},
      {"_GridField", "Visible", kPropertyGetPut, 0x40030003},
      {"_GridField", "Caption", kPropertyGetPut, 0x40030004},
      {"_GridField", "LocalName", kPropertyGetPut, 0x68030002},
      {"_GridField", "Index", kPropertyGet, 0x68030001},
      {"_GridField", "IsConst", kPropertyGet, 0x68030000},
      {"__GridField", "GetIndex", kEvent, 1},
  };
  EXPECT_EQ(slots, expected);
}

TEST(TypeLibrary, OnlyTheCalendarIsAControl) {
  for (const auto& described : kClasses) {
    EXPECT_EQ(described.is_control, std::string(described.name) == "Calendar") << described.name;
  }
}

TEST(TypeLibrary, DispatchIdentifiersAreUniqueInTheirInterface) {
  std::map<std::string, std::set<std::uint32_t>> seen;
  for (const auto& member : kMembers) {
    EXPECT_TRUE(seen[member.interface_name].insert(member.dispatch_id).second) << member.name;
  }
  EXPECT_EQ(seen["_Calendar"].size(), 5u);
  EXPECT_EQ(seen["_GridFields"].size(), 7u);
  EXPECT_EQ(seen["_GridField"].size(), 6u);
  EXPECT_EQ(seen["__GridField"].size(), 1u);
}

}  // namespace
}  // namespace ferrowind::type_library
