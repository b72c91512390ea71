#include "ferrowind/adapters/qt/services/languages.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>
#include <utility>

#include <gtest/gtest.h>

#include "ferrowind/adapters/qt/services/qt_words.h"
#include "ferrowind/adapters/qt/values/translated.h"

namespace ferrowind::qt {
namespace {

class LanguagesTest : public ::testing::Test {
 protected:
  // A translator that is gone is no longer asked.
  ~LanguagesTest() override { qDeleteAll(qApp->findChildren<QTranslator*>()); }

  [[nodiscard]] static std::string Use(const char* locale) {
    return UseLanguages(*qApp, QLocale(QLatin1String(locale))).toStdString();
  }

  QtWords words_;
};

TEST_F(LanguagesTest, AreThoseOfTheLocale) {
  const std::pair<const char*, const char*> kPrepared[] = {
      {"de_AT", "Vorbereitet"}, {"fr_CA", "Pr\u00E9par\u00E9"}, {"es_MX", "Preparado"}};
  for (const auto& [locale, prepared] : kPrepared) {
    EXPECT_EQ(Use(locale), std::string(locale, 2));
    EXPECT_EQ(words_.Translate("Prepared", std::nullopt), prepared);
    qDeleteAll(qApp->findChildren<QTranslator*>());
  }
  EXPECT_EQ(Use("ja_JP"), "ja");
  EXPECT_EQ(words_.Translate("Prepared", std::nullopt), "\u6E96\u5099\u6E08\u307F");
}

TEST_F(LanguagesTest, HaveTheTextsOfTheAdaptersAndOfTheLayouts) {
  ASSERT_EQ(Use("de_DE"), "de");
  EXPECT_EQ(Translated("Group by"), QStringLiteral("Gruppieren nach"));
  EXPECT_EQ(QCoreApplication::translate("fmHistory", "Changes"), QStringLiteral("\u00C4nderungen"));
}

TEST_F(LanguagesTest, HaveAFormForEachKindOfNumber) {
  ASSERT_EQ(Use("fr_FR"), "fr");
  EXPECT_EQ(words_.Translate("%n days", 0), "0 jour");
  EXPECT_EQ(words_.Translate("%n days", 1), "1 jour");
  EXPECT_EQ(words_.Translate("%n days", 2), "2 jours");
}

TEST_F(LanguagesTest, AreEnglishWhereNoOtherIsThereOrAsked) {
  for (const char* locale : {"en_GB", "pt_BR", "C"}) {
    EXPECT_EQ(Use(locale), "en") << locale;
    EXPECT_EQ(words_.Translate("Prepared", std::nullopt), std::nullopt) << locale;
  }
}

/// A host's own word for one text.
class WordOfHost : public QTranslator {
 public:
  [[nodiscard]] bool isEmpty() const override { return false; }
  [[nodiscard]] QString translate(const char* context, const char* text, const char* /*disambiguation*/,
                                  int /*number*/) const override {
    return QByteArray(context) == kTextContext && QByteArray(text) == "Prepared" ? QStringLiteral("Fertig")
                                                                                 : QString();
  }
};

TEST_F(LanguagesTest, LeaveTheLastWordToATranslatorOfTheHost) {
  ASSERT_EQ(Use("de_DE"), "de");
  WordOfHost host;
  QCoreApplication::installTranslator(&host);
  EXPECT_EQ(words_.Translate("Prepared", std::nullopt), "Fertig");
  EXPECT_EQ(words_.Translate("Not prepared", std::nullopt), "Nicht vorbereitet");
  QCoreApplication::removeTranslator(&host);
}

}  // namespace
}  // namespace ferrowind::qt
