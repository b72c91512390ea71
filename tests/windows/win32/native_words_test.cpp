#include "ferrowind/adapters/win32/words/native_words.h"

#include <gtest/gtest.h>

namespace ferrowind::win32 {
namespace {

using Languages = std::vector<std::string>;

TEST(NativeWords, AreSaidInTheFirstLanguageThatThereIs) {
  EXPECT_EQ(NativeWords(Languages{"de-CH", "fr-FR"}).Language(), "de");
  EXPECT_EQ(NativeWords(Languages{"nb-NO", "ja", "de"}).Language(), "ja");
  EXPECT_EQ(NativeWords(Languages{"en-GB", "de"}).Language(), "en");
  EXPECT_EQ(NativeWords(Languages{"nb-NO"}).Language(), "en");
  EXPECT_EQ(NativeWords(Languages{}).Language(), "en");
}

TEST(NativeWords, TranslateTheWindowsOwnTextsInEachLanguage) {
  for (const char* const language : {"de", "es", "fr", "ja"}) {
    SCOPED_TRACE(language);
    const NativeWords words(Languages{language});
    for (const char* const text :
         {"Currencies and calendars", "Days", "Holidays", "Year", "Sort &Ascending",
          "Drag a column header here to group by that column", "%1 is there already. Is it to be replaced?",
          "This is no date. Write a day and a month without a year, such as %1 or %2."}) {
      const auto translation = words.Translate(text, std::nullopt);
      ASSERT_TRUE(translation.has_value()) << text;
      EXPECT_NE(*translation, text);
    }
  }
  EXPECT_EQ(NativeWords(Languages{"de"}).Translate("&Ungroup", std::nullopt), "Gruppierung &lösen");
}

TEST(NativeWords, TranslateNothingElse) {
  const NativeWords german(Languages{"de"});
  EXPECT_EQ(german.Translate("Calendars", std::nullopt), std::nullopt);
  EXPECT_EQ(german.Translate("Days", 2), std::nullopt);
  EXPECT_EQ(NativeWords(Languages{"en"}).Translate("Days", std::nullopt), std::nullopt);
}

TEST(LanguagesOfUser, AreTold) { EXPECT_FALSE(LanguagesOfUser().empty()); }

}  // namespace
}  // namespace ferrowind::win32
