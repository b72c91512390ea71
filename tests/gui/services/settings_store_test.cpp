#include "ferrowind/adapters/qt/services/settings_store.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::qt {
namespace {

using platform::Value;

class SettingsStoreTest : public ::testing::Test {
 protected:
  void WriteFile(const QByteArray& content) {
    QFile file(path_);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
  }
  [[nodiscard]] SettingsStore Store() const { return SettingsStore(path_.toStdString()); }

  QTemporaryDir folder_;
  QString path_ = folder_.filePath("settings.ini");
};

TEST_F(SettingsStoreTest, KeepsAValueForLaterStores) {
  Store().Write("\\Tessaro\\Calendar\\Window", "Left", 1500.0F);
  EXPECT_EQ(Store().Read("\\Tessaro\\Calendar\\Window", "Left"), Value(1500.0F));
}

TEST_F(SettingsStoreTest, OfAUserIsTheFileThatTheGuideNames) {
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder_.path());
  SettingsStore().Write("Section", "Left", "x");
  QDir users(folder_.filePath("Tessaro"));
  ASSERT_EQ(users.entryList(QDir::Files), QStringList{"Ferrowind.conf"});
  QFile guide(FERROWIND_INSTALL_GUIDE);
  ASSERT_TRUE(guide.open(QIODevice::ReadOnly));
  EXPECT_TRUE(guide.readAll().contains("`~/.config/Tessaro/Ferrowind.conf`"));
}

TEST_F(SettingsStoreTest, OfAProgramIsAFileOfItsOwnAndNamedAsThatWishes) {
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder_.path());
  const QString before = QCoreApplication::applicationName();
  SettingsStore store = SettingsStore::OfProgram();
  QCoreApplication::setApplicationName("Back office");
  store.Write("Section", "Left", "x");
  EXPECT_TRUE(QFile::exists(folder_.filePath("Tessaro/Back office.conf")));
  QCoreApplication::setOrganizationName("Bank");
  EXPECT_EQ(store.Read("Section", "Left"), std::nullopt);
  store.Write("Section", "Left", "y");
  EXPECT_TRUE(QFile::exists(folder_.filePath("Bank/Back office.conf")));
  EXPECT_FALSE(QFile::exists(folder_.filePath("Tessaro/Ferrowind.conf")));
  QCoreApplication::setOrganizationName({});
  QCoreApplication::setApplicationName(before);
  EXPECT_EQ(SettingsStore().Read("Section", "Left"), std::nullopt);
}

TEST_F(SettingsStoreTest, HasNothingUnderANameThatWasNeverWritten) {
  Store().Write("Section", "Left", "x");
  EXPECT_EQ(Store().Read("Section", "Top"), std::nullopt);
  EXPECT_EQ(Store().Read("Other", "Left"), std::nullopt);
}

TEST_F(SettingsStoreTest, IgnoresOuterBackslashesOfASection) {
  Store().Write("\\Tessaro\\Calendar", "Left", "x");
  EXPECT_EQ(Store().Read("Tessaro\\Calendar\\", "Left"), Value("x"));
}

TEST_F(SettingsStoreTest, TellsSectionsApartWhoseNamesHoldSlashes) {
  Store().Write("A/B", "Left", "slash");
  Store().Write("A\\B", "Left", "levels");
  EXPECT_EQ(Store().Read("A/B", "Left"), Value("slash"));
  EXPECT_EQ(Store().Read("A\\B", "Left"), Value("levels"));
}

TEST_F(SettingsStoreTest, KeepsAnyText) {
  using namespace std::string_literals;
  const std::string text = "line\r\nnext, \"quoted\"; \\ \0 \xC3\xA4 \xE2\x82\xAC"s;
  Store().Write("Section", "Text", text);
  EXPECT_EQ(Store().Read("Section", "Text"), Value(text));
}

/// Each of them, unpacked, is a list of more than two billion values.
TEST_F(SettingsStoreTest, UnpacksNothingAndSetsAFileAsideThatHoldsPackedValues) {
  for (const QByteArray& value : {QByteArray("@Variant(\\0\\0\\0\\x9\\0\\x7f\\xff\\xff\\xff)"),
                                  QByteArray("\"@Var\"iant(\\0\\0\\0\\x9\\0\\x7f\\xff\\xff\\xff)"),
                                  QByteArray("\\x40\\126\\qariant(\\0\\0\\0\\x9\\0\\x7f\\xff\\xff\\xff)"),
                                  QByteArray("@DateTime(\\0\\0\\0\\x9)")}) {
    const QByteArray content = "[Section]\nLeft=1\nTop=" + value + "\n";
    WriteFile(content);
    EXPECT_EQ(Store().Read("Section", "Top"), std::nullopt) << content.data();
    EXPECT_EQ(Store().Read("Section", "Left"), std::nullopt) << content.data();
    Store().Write("Section", "Left", "2");
    EXPECT_EQ(Store().Read("Section", "Left"), Value("2"));
    QFile file(path_ + ".refused");
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), content);
  }
}

TEST_F(SettingsStoreTest, ReadsATextWithCommasThatWasWrittenByHand) {
  WriteFile("[Section]\nText=a, b\n");
  EXPECT_EQ(Store().Read("Section", "Text"), Value("a,b"));
}

TEST_F(SettingsStoreTest, ReadsANumberThatWasWrittenByHandAsText) {
  WriteFile("[Section]\nLeft=300\n");
  EXPECT_EQ(Store().Read("Section", "Left"), Value("300"));
}

TEST_F(SettingsStoreTest, HasNothingWhereTheStoredValueIsNoText) {
  WriteFile(
      "[Section]\nLeft=@ByteArray(\\0\\x1)\nTop=@Variant(\\0\\0\\0\\x7f\\0)\nWidth=@Rect(1 2 3 "
      "4)\nHeight=@Invalid()\n");
  for (const char* name : {"Left", "Top", "Width", "Height"}) {
    EXPECT_EQ(Store().Read("Section", name), std::nullopt) << name;
  }
}

TEST_F(SettingsStoreTest, LivesWithDamagedFiles) {
  for (const QByteArray& content :
       {QByteArrayLiteral("\x00\xff\xfe garbage ]][[\n=\n@Variant("), QByteArray("[Section\nLeft"),
        QByteArray(100000, '['), QByteArray("[Section]\nLeft=@Variant(\\0\\0\\0")}) {
    WriteFile(content);
    EXPECT_NO_THROW(static_cast<void>(Store().Read("Section", "Left")));
    Store().Write("Section", "Left", "again");
    EXPECT_EQ(Store().Read("Section", "Left"), Value("again"));
  }
}

TEST_F(SettingsStoreTest, LeavesTheFileAloneWhereTheValueIsThereAlready) {
  Store().Write("Section", "Left", 1500.0F);
  const QFileInfo before(path_);
  QFile file(path_);
  ASSERT_TRUE(file.open(QIODevice::ReadWrite));
  ASSERT_TRUE(file.setFileTime(before.lastModified().addDays(-1), QFileDevice::FileModificationTime));
  file.close();
  Store().Write("Section", "Left", 1500.0F);
  EXPECT_EQ(QFileInfo(path_).lastModified(), before.lastModified().addDays(-1));
  Store().Write("Section", "Left", "1500");
  EXPECT_EQ(Store().Read("Section", "Left"), Value("1500"));
}

TEST_F(SettingsStoreTest, NamesItselfWhenItCannotBeWritten) {
  // A folder in the file's place cannot be written by anyone, root included.
  ASSERT_TRUE(QDir().mkpath(path_));
  try {
    Store().Write("Section", "Left", "x");
    ADD_FAILURE() << "A setting was written into a folder";
  } catch (const platform::Failure& failure) {
    EXPECT_NE(failure.Description().find(path_.toStdString()), std::string::npos) << failure.Description();
    EXPECT_NE(failure.Description().find("Left"), std::string::npos) << failure.Description();
  }
}

}  // namespace
}  // namespace ferrowind::qt
