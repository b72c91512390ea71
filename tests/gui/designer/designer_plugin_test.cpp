#include <QFile>
#include <QIcon>
#include <QPluginLoader>
#include <QPushButton>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>
#include <memory>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

constexpr const char* kWidgetClass = "ferrowind::qt::CalendarWidget";

/// The plug-in, loaded as Designer loads it.
class DesignerPlugin : public ::testing::Test {
 protected:
  DesignerPlugin() : offered_(qobject_cast<QDesignerCustomWidgetInterface*>(loader_.instance())) {}
  void SetUp() override { ASSERT_NE(offered_, nullptr) << loader_.errorString().toStdString(); }

  QPluginLoader loader_{QStringLiteral(FERROWIND_DESIGNER_PLUGIN)};
  QDesignerCustomWidgetInterface* offered_;
};

TEST_F(DesignerPlugin, OffersTheWidgetUnderItsClass) {
  EXPECT_EQ(offered_->name(), kWidgetClass);
  EXPECT_FALSE(offered_->icon().isNull());
  EXPECT_FALSE(offered_->toolTip().isEmpty());
  EXPECT_FALSE(offered_->isContainer());
}

TEST_F(DesignerPlugin, WritesFormsWithTheClassAndHeaderOfTheExample) {
  QFile file(QStringLiteral(FERROWIND_EXAMPLE_FORM));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QString form = QString::fromUtf8(file.readAll());
  const QString widget = R"(<widget class="%1" name="calendar"/>)";
  const QString header = R"(<header location="global">%1</header>)";
  for (const QString& text : {form, offered_->domXml()}) {
    EXPECT_TRUE(text.contains(widget.arg(offered_->name()))) << text.toStdString();
    EXPECT_TRUE(text.contains(header.arg(offered_->includeFile()))) << text.toStdString();
  }
}

TEST_F(DesignerPlugin, MakesTheWidgetWhoseSlotAFormConnects) {
  const std::unique_ptr<QWidget> widget(offered_->createWidget(nullptr));
  EXPECT_STREQ(widget->metaObject()->className(), kWidgetClass);
  EXPECT_EQ(widget->sizeHint(), QSize(16, 16));
  QPushButton button;
  EXPECT_TRUE(QObject::connect(&button, SIGNAL(clicked()), widget.get(), SLOT(ShowInFront())));
  button.click();
}

}  // namespace
