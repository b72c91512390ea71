#include "ferrowind/platform/values/phrase.h"

#include <gtest/gtest.h>

namespace ferrowind::platform {
namespace {

using Number = std::optional<std::int64_t>;

/// Another language: each text in brackets, behind its number.
std::optional<std::string> Bracketed(const std::string& text, const Number& number) {
  return (number ? std::to_string(*number) : "") + "[" + text + "]";
}

TEST(Phrase, IsWordedWithItsArgumentsEachInTheSameLanguage) {
  const Phrase date = Phrase::Of("%1 %2", {std::string("14"), Phrase::Of("April")});
  const Phrase phrase = Phrase::Of("%1 moved from here to %2", {std::string("Fair"), date});
  EXPECT_EQ(phrase.InEnglish(), "Fair moved from here to 14 April");
  EXPECT_EQ(phrase.In(Bracketed), "[Fair moved from here to [14 [April]]]");
}

TEST(Phrase, LeavesNamesAsTheyStand) {
  const Phrase name(std::string("100 %1"));
  EXPECT_EQ(name.In(Bracketed), "100 %1");
  EXPECT_EQ(Phrase::Of("%1 and %2", {name, std::string("%1 %n")}).InEnglish(), "100 %1 and %1 %n");
}

TEST(Phrase, TakesTheFormOfItsNumber) {
  const auto days = [](std::int64_t number) {
    return Phrase::OfNumber(number, "%n day of %1", "%n days of %1", {std::string("EUR")});
  };
  EXPECT_EQ(days(1).InEnglish(), "1 day of EUR");
  EXPECT_EQ(days(0).InEnglish(), "0 days of EUR");
  EXPECT_EQ(days(1).In(Bracketed), "1[1 days of EUR]") << "a translation is asked for by the plural";
}

TEST(Phrase, IsInEnglishWhatIsNotTranslated) {
  const auto only_april = [](const std::string& text, const Number&) {
    return text == "April" ? std::optional<std::string>("avril") : std::nullopt;
  };
  EXPECT_EQ(Phrase::Of("until %1", {Phrase::Of("April")}).In(only_april), "until avril");
}

TEST(Phrase, SaysNothingAtFirst) {
  EXPECT_TRUE(Phrase().IsEmpty());
  EXPECT_EQ(Phrase().In(Bracketed), "");
  EXPECT_FALSE(Phrase::Of("None").IsEmpty());
}

TEST(Phrase, MayGoIntoItself) {
  Phrase list = std::string("a");
  list = Phrase::Of("%1, %2", {list, std::string("b")});
  list = Phrase::Of("%1 and %2", {std::move(list), std::string("c")});
  EXPECT_EQ(list.InEnglish(), "a, b and c");
}

}  // namespace
}  // namespace ferrowind::platform
