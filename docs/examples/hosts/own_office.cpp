// A host with its own currencies, settings and a column that it computes. usage: own_office sqlite:PATH
// SETTINGS.ini

#include <QApplication>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "ferrowind/adapters/qt/embedding/calendar_widget.h"
#include "ferrowind/adapters/qt/forms/qt_toolkit.h"
#include "ferrowind/adapters/qt/services/qt_clock.h"
#include "ferrowind/adapters/qt/services/qt_locale.h"
#include "ferrowind/adapters/qt/services/qt_shared_services.h"
#include "ferrowind/adapters/services/object_makers.h"
#include "ferrowind/adapters/sqlite/engine.h"
#include "ferrowind/platform/database/engine_command.h"
#include "ferrowind/platform/platform.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"

using ferrowind::platform::RecordSet;
using ferrowind::platform::Value;

/// The office's dictionary: which database, and which currencies in which order.
class OfficeDictionary : public ferrowind::platform::Dictionary {
 public:
  explicit OfficeDictionary(std::string database) : database_(std::move(database)) {}

  std::string dic_ConnectionString() override { return database_; }

  std::shared_ptr<RecordSet> dic_GetDicRecByFilter(const std::string& name,
                                                   const std::string& filter) override {
    if (name != "Ccy") throw ferrowind::platform::Failure(5, "The office has no dictionary " + name);
    constexpr std::int16_t kCurrency = 0;
    auto currencies =
        std::make_shared<RecordSet>(std::vector<std::string>{"CcyID", "Ccy", "CcyType", "Name"},
                                    std::vector<std::vector<Value>>{{978, "EUR", kCurrency, "Euro"},
                                                                    {840, "USD", kCurrency, "US dollar"},
                                                                    {392, "JPY", kCurrency, "Yen"}});
    currencies->SetFilter(filter);
    return currencies;
  }

 private:
  std::string database_;
};

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  if (argc != 3) {
    std::fputs("usage: own_office sqlite:PATH SETTINGS.ini\n", stderr);
    return 2;
  }
  const std::string database = argv[1];
  const std::string settings = argv[2];

  ferrowind::platform::EngineRegistry engines;
  engines.Register(ferrowind::sqlite::Engine::kScheme, std::make_shared<ferrowind::sqlite::Engine>());
  ferrowind::platform::EngineCommandFactory commands(engines);

  ferrowind::ObjectMakers objects;
  objects.Register(ferrowind::platform::kDictionaryIdentifier,
                   [&] { return std::make_shared<OfficeDictionary>(database); });
  objects.Register(ferrowind::platform::kSharedServicesIdentifier, [&] {
    return std::make_shared<ferrowind::qt::QtSharedServices>(ferrowind::qt::SettingsStore(settings));
  });

  ferrowind::qt::QtToolkit toolkit;
  ferrowind::qt::QtLocale locale;
  ferrowind::qt::QtClock clock;
  const ferrowind::platform::Platform platform{
      objects, commands, toolkit, locale, clock, QApplication::applicationDirPath().toStdString()};

  ferrowind::qt::CalendarWidget calendar(platform);
  const auto headers = calendar.Control().Headers();
  headers->LocalNames("Description")->SetVisible(false);
  headers->Add("Weekday", "Weekday", "Weekday");
  headers->LocalNames("Weekday")->SetFunction([&locale](const RecordSet& day) {
    return Value(locale.WeekdayName(ferrowind::platform::ToDate(day["ODate"]).Weekday()));
  });
  calendar.Control().Show();
  return QApplication::exec();
}
