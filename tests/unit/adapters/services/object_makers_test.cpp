#include "ferrowind/adapters/services/object_makers.h"

#include <gtest/gtest.h>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind {
namespace {

class Thing : public platform::OutsideObject {};

platform::Failure FailureOf(ObjectMakers& makers, const std::string& identifier) {
  try {
    static_cast<void>(makers.CreateObject(identifier));
  } catch (const platform::Failure& failure) {
    return failure;
  }
  ADD_FAILURE() << identifier << " was created";
  return {0, ""};
}

TEST(ObjectMakers, MakesANewObjectEveryTime) {
  ObjectMakers makers;
  makers.Register("House.Thing", [] { return std::make_shared<Thing>(); });
  const auto first = makers.CreateObject("House.Thing");
  const auto second = makers.CreateObject("House.Thing");
  EXPECT_NE(dynamic_cast<Thing*>(first.get()), nullptr);
  EXPECT_NE(first, second);
}

TEST(ObjectMakers, FindsAnIdentifierInAnyLetterCase) {
  ObjectMakers makers;
  makers.Register("House.Thing", [] { return std::make_shared<Thing>(); });
  EXPECT_NE(makers.CreateObject("HOUSE.thing"), nullptr);
}

TEST(ObjectMakers, NamesAnIdentifierThatNothingIsRegisteredUnder) {
  ObjectMakers makers;
  const platform::Failure failure = FailureOf(makers, "House.Nothing");
  EXPECT_EQ(failure.Number(), platform::failure_number::kCannotCreateObject);
  EXPECT_NE(failure.Description().find("House.Nothing"), std::string::npos);
}

TEST(ObjectMakers, KeepsTheFailureOfAMakerAndNamesTheIdentifier) {
  ObjectMakers makers;
  makers.Register("House.Broken", []() -> std::shared_ptr<platform::OutsideObject> {
    throw platform::Failure(7, "no memory left");
  });
  const platform::Failure failure = FailureOf(makers, "House.Broken");
  EXPECT_EQ(failure.Number(), 7);
  EXPECT_NE(failure.Description().find("House.Broken"), std::string::npos);
  EXPECT_NE(failure.Description().find("no memory left"), std::string::npos);
}

TEST(ObjectMakers, TakesAMakerThatMakesNothingForAFailure) {
  ObjectMakers makers;
  makers.Register("House.Empty", [] { return std::shared_ptr<platform::OutsideObject>(); });
  EXPECT_EQ(FailureOf(makers, "House.Empty").Number(), platform::failure_number::kCannotCreateObject);
}

TEST(ObjectMakers, UsesTheLaterOfTwoMakers) {
  ObjectMakers makers;
  makers.Register("House.Thing", [] { return std::shared_ptr<platform::OutsideObject>(); });
  makers.Register("house.thing", [] { return std::make_shared<Thing>(); });
  EXPECT_NE(makers.CreateObject("House.Thing"), nullptr);
}

}  // namespace
}  // namespace ferrowind
