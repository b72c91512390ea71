#include <QApplication>
#include <QClipboard>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include "ferrowind/adapters/headless/memory_engine.h"
#include "ferrowind/adapters/qt/grid/qt_grid.h"
#include "ferrowind/adapters/qt/services/qt_clock.h"
#include "ferrowind/adapters/qt/services/qt_locale.h"
#include "ferrowind/adapters/qt/services/qt_shared_services.h"
#include "ferrowind/adapters/services/desktop_dictionary.h"
#include "ferrowind/adapters/services/object_makers.h"
#include "ferrowind/platform/database/engine_registry.h"

#include "tests/contract/services/services_under_test.h"

namespace ferrowind::contract {
namespace {

constexpr const char* kConnection = "memory:contract";

/// The services of the desktop over a database in memory.
class QtServicesUnderTest : public ServicesUnderTest {
 public:
  QtServicesUnderTest() {
    engine_->CreateDatabase("contract");
    engines_.Register("memory", engine_);
    objects_.Register(platform::kDictionaryIdentifier,
                      [this] { return std::make_shared<DesktopDictionary>(engines_, kConnection); });
    objects_.Register(platform::kSharedServicesIdentifier,
                      [this] { return std::make_shared<qt::QtSharedServices>(settings_); });
    widget_.setObjectName("gexRows");
    widget_.resize(600, 300);
    widget_.show();
    QObject::connect(&operator_, &QTimer::timeout, [this] { Answer(); });
    operator_.start(5);
  }

  [[nodiscard]] platform::ObjectFactory& Objects() override { return objects_; }
  [[nodiscard]] const platform::Locale& Locale() override { return locale_; }
  [[nodiscard]] const platform::Clock& Clock() override { return clock_; }
  [[nodiscard]] std::string ConnectionString() override { return kConnection; }
  [[nodiscard]] platform::Grid& Grid() override { return grid_; }
  [[nodiscard]] platform::Grid& AnotherGrid() override {
    another_.reset();
    another_ = std::make_unique<GridOfItsOwn>();
    return another_->grid;
  }
  [[nodiscard]] std::string Clipboard() override { return QApplication::clipboard()->text().toStdString(); }
  void DamageLayout(const std::string& section) override { settings_.Write(section, "Layout", "damaged"); }
  [[nodiscard]] std::vector<std::string> AnsweredTexts() override { return answered_; }

 private:
  void Answer() {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    answered_.push_back(box->text().toStdString());
    box->button(QMessageBox::Ok)->click();
  }

  struct GridOfItsOwn {
    GridOfItsOwn() { widget.setObjectName("gexRows"); }
    qt::GridWidget widget;
    qt::QtGrid grid{widget};
  };

  QTemporaryDir folder_;
  qt::SettingsStore settings_{folder_.filePath("settings.ini").toStdString()};
  std::shared_ptr<headless::MemoryEngine> engine_ = std::make_shared<headless::MemoryEngine>();
  platform::EngineRegistry engines_;
  ObjectMakers objects_;
  qt::QtLocale locale_;
  qt::QtClock clock_;
  qt::GridWidget widget_;
  qt::QtGrid grid_{widget_};
  std::unique_ptr<GridOfItsOwn> another_;
  QTimer operator_;
  std::vector<std::string> answered_;
};

}  // namespace

std::unique_ptr<ServicesUnderTest> MakeServicesUnderTest() { return std::make_unique<QtServicesUnderTest>(); }

}  // namespace ferrowind::contract
