#include "ferrowind/adapters/postgres/catalogue_comparison.h"

#include <map>
#include <set>
#include <string_view>

namespace ferrowind::postgres {
namespace {

/// What is said of an object, by property.
using Properties = std::map<std::string, std::string>;
using Objects = std::map<std::string, Properties>;

/// Longer values, such as the text of a procedure, are not told, only that they differ.
constexpr std::size_t kLongestToldValue = 200;

Objects ByObject(const std::vector<CatalogueFact>& facts) {
  Objects objects;
  for (const auto& [object, property, value] : facts) objects[object][property] = value;
  return objects;
}

std::string ValueOf(const Properties& properties, const std::string& property) {
  const auto place = properties.find(property);
  return place == properties.end() ? std::string("none") : place->second;
}

/// Empty when both are the same.
std::string PropertyDifference(const std::string& property, const Properties& found,
                               const Properties& expected) {
  const std::string is = ValueOf(found, property);
  const std::string should_be = ValueOf(expected, property);
  if (is == should_be) return {};
  if (is.size() > kLongestToldValue || should_be.size() > kLongestToldValue) return property + " is another";
  return property + " is " + is + " instead of " + should_be;
}

/// Empty when they agree.
std::string PropertyDifferences(const Properties& found, const Properties& expected) {
  std::set<std::string> properties;
  for (const auto& [property, value] : found) properties.insert(property);
  for (const auto& [property, value] : expected) properties.insert(property);
  std::string all;
  for (const auto& property : properties) {
    const std::string difference = PropertyDifference(property, found, expected);
    if (difference.empty()) continue;
    all += (all.empty() ? "" : "; ") + difference;
  }
  return all;
}

/// The table or the like that an object such as "column cldday.odate" is a part of; empty for others.
std::string WholeOf(std::string_view object, const Objects& objects) {
  const auto kind_end = object.find(' ');
  const auto part = object.find('.', kind_end + 1);
  if (part == std::string_view::npos) return {};
  const std::string name(object.substr(kind_end + 1, part - kind_end - 1));
  for (const char* const kind :
       {"table ", "view ", "type ", "materialized view ", "foreign table ", "partitioned table "}) {
    if (objects.contains(kind + name)) return kind + name;
  }
  return {};
}

/// Whether the object is a part of a whole that only `own` has, so that telling the whole is enough.
bool IsToldByItsWhole(const std::string& object, const Objects& own, const Objects& others) {
  const std::string whole = WholeOf(object, own);
  return !whole.empty() && !others.contains(whole);
}

}  // namespace

std::vector<std::string> CatalogueDifferences(const std::vector<CatalogueFact>& found,
                                              const std::vector<CatalogueFact>& expected) {
  const Objects found_objects = ByObject(found);
  const Objects expected_objects = ByObject(expected);
  std::vector<std::string> sentences;
  for (const auto& [object, properties] : expected_objects) {
    const auto match = found_objects.find(object);
    if (match == found_objects.end()) {
      if (!IsToldByItsWhole(object, expected_objects, found_objects)) {
        sentences.push_back("The " + object + " is missing");
      }
      continue;
    }
    const std::string differences = PropertyDifferences(match->second, properties);
    if (!differences.empty()) {
      sentences.push_back("The " + object + " is not this program's: " + differences);
    }
  }
  for (const auto& [object, properties] : found_objects) {
    if (expected_objects.contains(object) || IsToldByItsWhole(object, found_objects, expected_objects)) {
      continue;
    }
    sentences.push_back("The " + object + " does not belong to the schema");
  }
  return sentences;
}

bool HasPlainTables(const std::vector<CatalogueFact>& found, const std::vector<CatalogueFact>& expected) {
  constexpr std::string_view kTable = "table ";
  const Objects found_objects = ByObject(found);
  for (const auto& fact : expected) {
    if (!fact.object.starts_with(kTable)) continue;
    for (const char* const kind : {"view ", "materialized view ", "foreign table "}) {
      if (found_objects.contains(kind + fact.object.substr(kTable.size()))) return false;
    }
  }
  return true;
}

}  // namespace ferrowind::postgres
