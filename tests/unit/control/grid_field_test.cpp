#include "ferrowind/control/grid_field.h"

#include <gtest/gtest.h>

#include "ferrowind/control/component_error.h"
#include "ferrowind/control/grid_field_constancy.h"

#include "tests/support/expect_failure.h"

namespace ferrowind {
namespace {

using testing::ExpectFailure;

TEST(GridField, StartsWithEmptyTextsHiddenAndNotConstant) {
  const GridField field;
  EXPECT_EQ(field.LocalName(), "");
  EXPECT_EQ(field.FieldName(), "");
  EXPECT_EQ(field.Caption(), "");
  EXPECT_FALSE(field.Visible());
  EXPECT_FALSE(field.IsConst());
}

TEST(GridField, ComponentErrorIsTheSignedFormOfItsNumber) {
  EXPECT_EQ(static_cast<std::uint32_t>(kComponentError), 0x80040258u);
}

TEST(GridField, RefusesANewLocalNameWhileConstantAndKeepsTheOldOne) {
  GridField field;
  field.SetLocalName("FullDate");
  GridFieldConstancy::SetConst(field, true);
  ExpectFailure([&] { field.SetLocalName("Other"); }, kComponentError, "It's constant field");
  EXPECT_EQ(field.LocalName(), "FullDate");
}

TEST(GridField, TakesANewCaptionFieldNameAndVisibilityWhileConstant) {
  GridField field;
  GridFieldConstancy::SetConst(field, true);
  field.SetCaption("Day");
  field.SetVisible(true);
  field.SetFieldName("ODate2");
  EXPECT_EQ(field.Caption(), "Day");
  EXPECT_TRUE(field.Visible());
  EXPECT_EQ(field.FieldName(), "ODate2");
}

TEST(GridField, TakesANewLocalNameAgainOnceItIsNoLongerConstant) {
  GridField field;
  GridFieldConstancy::SetConst(field, true);
  GridFieldConstancy::SetConst(field, false);
  field.SetLocalName("Free");
  EXPECT_EQ(field.LocalName(), "Free");
}

TEST(GridField, TellsOfItsCaptionVisibilityAndFunction) {
  GridField field;
  int changes = 0;
  const auto subscription = field.OnChange([&] { ++changes; });
  field.SetCaption("Day");
  EXPECT_EQ(changes, 1);
  field.SetVisible(true);
  EXPECT_EQ(changes, 2);
  field.SetFunction([](const platform::RecordSet&) { return platform::Value("computed"); });
  EXPECT_EQ(changes, 3);
  EXPECT_TRUE(field.Function());
  field.SetFieldName("ODate");
  field.SetLocalName("FullDate");
  EXPECT_EQ(changes, 3);
}

TEST(GridField, RefusesAFunctionWhileConstant) {
  GridField field;
  GridFieldConstancy::SetConst(field, true);
  ExpectFailure([&] { field.SetFunction([](const platform::RecordSet&) { return platform::Value(1); }); },
                kComponentError, "It's constant field");
  EXPECT_FALSE(field.Function());
}

TEST(GridField, IndexIsZeroWithoutAHandler) {
  GridField field;
  field.SetLocalName("FullDate");
  EXPECT_EQ(field.Index(), 0);
}

TEST(GridField, IndexIsWhatTheHandlerStoresAndTheHandlerIsAskedWithTheLocalNameAndZero) {
  GridField field;
  field.SetLocalName("FullDate");
  std::string asked_name;
  std::int32_t asked_index = -1;
  const auto subscription = field.OnGetIndex([&](std::string& name, std::int32_t& index) {
    asked_name = name;
    asked_index = index;
    index = 7;
  });
  EXPECT_EQ(field.Index(), 7);
  EXPECT_EQ(asked_name, "FullDate");
  EXPECT_EQ(asked_index, 0);
}

TEST(GridField, AHandlerCannotRenameTheColumnThroughItsArgument) {
  GridField field;
  field.SetLocalName("FullDate");
  const auto subscription = field.OnGetIndex([](std::string& name, std::int32_t&) { name = "Changed"; });
  EXPECT_EQ(field.Index(), 0);
  EXPECT_EQ(field.LocalName(), "FullDate");
}

}  // namespace
}  // namespace ferrowind
