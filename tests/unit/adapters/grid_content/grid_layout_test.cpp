#include "ferrowind/adapters/grid_content/grid_layout.h"

#include <string>

#include <gtest/gtest.h>

#include "ferrowind/platform/toolkit/grid_keys.h"

namespace ferrowind::grid_content {
namespace {

constexpr const char* kLayout =
    R"({"columns":[{"key":"Na\"me","visible":true,"width":120},{"key":"Day","visible":false,"width":1}],)"
    R"("gridLayout":1,"groups":[{"column":"Day","order":-1}],"sort":[{"column":"Na\"me","order":1}]})";

TEST(GridLayout, IsKeptAsText) {
  GridLayout layout;
  layout.columns = {{"Na\"me", 120, true}, {"Day", 1, false}};
  layout.sort_keys = {{"Na\"me", platform::kSortAscending}};
  layout.group_keys = {{"Day", platform::kSortDescending}};
  EXPECT_EQ(EncodeLayout(layout), kLayout);
}

TEST(GridLayout, IsReadFromText) {
  const auto layout = DecodeLayout(kLayout);
  ASSERT_TRUE(layout.has_value());
  ASSERT_EQ(layout->columns.size(), 2U);
  EXPECT_EQ(layout->columns[0].key, "Na\"me");
  EXPECT_EQ(layout->columns[0].width, 120);
  EXPECT_TRUE(layout->columns[0].is_visible);
  EXPECT_FALSE(layout->columns[1].is_visible);
  EXPECT_EQ(EncodeLayout(*layout), kLayout);
}

TEST(GridLayout, IsNoneWithValuesThatNoGridHas) {
  const std::string sound = kLayout;
  const auto with = [&sound](const std::string& part, const std::string& other) {
    std::string text = sound;
    return text.replace(text.find(part), part.size(), other);
  };
  for (const std::string& text :
       {with("\"width\":120", "\"width\":0"), with("\"width\":120", "\"width\":10001"),
        with("\"width\":120", "\"width\":1e2"), with("\"width\":120", "\"width\":\"120\""),
        with("\"order\":1", "\"order\":2"), with("\"order\":-1", "\"order\":null"),
        with("\"key\":\"Day\"", "\"key\":\"NA\\\"ME\""), with("\"visible\":false", "\"visible\":0"),
        with("\"gridLayout\":1", "\"gridLayout\":2"), with("\"groups\"", "\"others\""),
        with("\"columns\":[", "\"columns\":[7,"), std::string("[]"), std::string()}) {
    EXPECT_FALSE(DecodeLayout(text).has_value()) << text;
  }
}

}  // namespace
}  // namespace ferrowind::grid_content
