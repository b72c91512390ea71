#include "ferrowind/data/said.h"

#include <map>

#include <gtest/gtest.h>

#include "ferrowind/adapters/headless/world.h"

namespace ferrowind {
namespace {

class FewWords : public platform::Words {
 public:
  [[nodiscard]] std::optional<std::string> Translate(const std::string& text,
                                                     std::optional<std::int64_t> number) const override {
    const auto found = words.find(text);
    if (found == words.end()) return std::nullopt;
    if (number) return std::to_string(*number) + found->second;
    return found->second;
  }

  std::map<std::string, std::string> words;
};

class SaidTest : public ::testing::Test {
 protected:
  headless::World world_;
  platform::Platform platform_ = world_.Platform();
  FewWords words_;
};

TEST_F(SaidTest, SaysEnglishWithoutWords) {
  EXPECT_EQ(Said(platform_, "Prepared"), "Prepared");
  EXPECT_EQ(Said(platform_, ""), "");
}

TEST_F(SaidTest, SaysTheTranslationWhereThereIsOne) {
  words_.words = {{"Prepared", "Vorbereitet"}};
  platform_.words = &words_;
  EXPECT_EQ(Said(platform_, "Prepared"), "Vorbereitet");
  EXPECT_EQ(Said(platform_, "Missing"), "Missing");
}

TEST_F(SaidTest, PutsArgumentsWhereTheTranslationWantsThem) {
  words_.words = {{"%1 of %2", "%2: %1"}};
  EXPECT_EQ(Said(platform_, "%1 of %2", {"EUR", "2027"}), "EUR of 2027");
  platform_.words = &words_;
  EXPECT_EQ(Said(platform_, "%1 of %2", {"EUR", "2027"}), "2027: EUR");
}

TEST_F(SaidTest, TakesNothingInAnArgumentForAPlaceholder) {
  EXPECT_EQ(Said(platform_, "%1 and %2", {"100 %2", "%1 %n"}), "100 %2 and %1 %n");
}

TEST_F(SaidTest, KeepsWhatIsNoPlaceholderOrHasNoArgument) {
  EXPECT_EQ(Said(platform_, "100 % of %1, %3, %0, %n, %", {"all"}), "100 % of all, %3, %0, %n, %");
}

TEST_F(SaidTest, SaysNumbersInTheirForm) {
  const auto days = [&](std::int64_t number) {
    return SaidOfNumber(platform_, number, "%n day of %1", "%n days of %1", {"EUR"});
  };
  EXPECT_EQ(days(1), "1 day of EUR");
  EXPECT_EQ(days(0), "0 days of EUR");
  EXPECT_EQ(days(-1), "-1 days of EUR");
  EXPECT_EQ(days(12), "12 days of EUR");
  words_.words = {{"%n days of %1", " Tage von %1"}};
  platform_.words = &words_;
  EXPECT_EQ(days(12), "12 Tage von EUR");
}

TEST_F(SaidTest, SaysTheTextsOfADesign) {
  words_.words = {{"History", "Verlauf"},
                  {"Undo",
                   "Zur\xC3\xBC"
                   "cknehmen"},
                  {"Undo the change",
                   "Nimmt zur\xC3\xBC"
                   "ck"}};
  platform_.words = &words_;
  const auto form =
      Said(platform_, platform::FormDesign{.name = "fmHistory",
                                           .caption = "History",
                                           .controls = {{platform::ControlKind::kButton, "Undo", "Undo"}}});
  EXPECT_EQ(form.name, "fmHistory");
  EXPECT_EQ(form.caption, "Verlauf");
  EXPECT_EQ(form.controls[0].name, "Undo");
  EXPECT_EQ(form.controls[0].text,
            "Zur\xC3\xBC"
            "cknehmen");
  const auto tool = Said(
      platform_, platform::ToolDesign{.id = "Undo", .caption = "Undo", .description = "Undo the change"});
  EXPECT_EQ(tool.id, "Undo");
  EXPECT_EQ(tool.caption,
            "Zur\xC3\xBC"
            "cknehmen");
  EXPECT_EQ(tool.description,
            "Nimmt zur\xC3\xBC"
            "ck");
}

}  // namespace
}  // namespace ferrowind
