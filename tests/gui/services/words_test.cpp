#include <QCoreApplication>
#include <QTranslator>

#include <gtest/gtest.h>

#include "ferrowind/adapters/qt/services/qt_words.h"

namespace ferrowind::qt {
namespace {

/// German, for a few texts of the component and one of another context.
class FewWords : public QTranslator {
 public:
  [[nodiscard]] bool isEmpty() const override { return false; }
  [[nodiscard]] QString translate(const char* context, const char* source, const char* /*disambiguation*/,
                                  int number) const override {
    const QByteArray text(source);
    if (QByteArray(context) != "ferrowind")
      return text == "Elsewhere" ? QStringLiteral("Anderswo") : QString();
    if (text == "Prepared") return QStringLiteral("Vorbereitet");
    if (text == "%n days of %1")
      return number == 1 ? QStringLiteral("%n Tag von %1") : QStringLiteral("%n Tage von %1");
    return {};
  }
};

class QtWordsTest : public ::testing::Test {
 protected:
  QtWordsTest() { QCoreApplication::installTranslator(&translator_); }
  ~QtWordsTest() override { QCoreApplication::removeTranslator(&translator_); }

  FewWords translator_;
  QtWords words_;
};

TEST_F(QtWordsTest, TranslatesByTheTranslatorsOfTheApplication) {
  EXPECT_EQ(words_.Translate("Prepared", std::nullopt), "Vorbereitet");
}

TEST_F(QtWordsTest, HasNothingForATextWithoutATranslation) {
  EXPECT_EQ(words_.Translate("Unheard of", std::nullopt), std::nullopt);
  EXPECT_EQ(words_.Translate("Elsewhere", std::nullopt), std::nullopt);
  EXPECT_EQ(words_.Translate("%n words", 3), std::nullopt);
}

TEST_F(QtWordsTest, ChoosesTheFormByTheNumberAndKeepsOtherPlaceholders) {
  EXPECT_EQ(words_.Translate("%n days of %1", 1), "1 Tag von %1");
  EXPECT_EQ(words_.Translate("%n days of %1", 5), "5 Tage von %1");
}

TEST_F(QtWordsTest, LeavesNumbersThatItCannotTellToTheEnglishText) {
  EXPECT_EQ(words_.Translate("%n days of %1", -1), std::nullopt);
  EXPECT_EQ(words_.Translate("%n days of %1", 3'000'000'000), std::nullopt);
}

}  // namespace
}  // namespace ferrowind::qt
