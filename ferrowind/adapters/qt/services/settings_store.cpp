#include "ferrowind/adapters/qt/services/settings_store.h"

#include <QStringList>
#include <QVariant>

#include "ferrowind/adapters/qt/services/setting_text.h"
#include "ferrowind/adapters/qt/values/qt_text.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::qt {

using platform::Value;

namespace {

/// Within a level a slash would open another one, and an empty level would be lost.
QString EncodedLevel(QString level) {
  level.replace(QLatin1Char('%'), QStringLiteral("%25"));
  level.replace(QLatin1Char('/'), QStringLiteral("%2F"));
  return level.replace(QLatin1Char('\\'), QStringLiteral("%5C"));
}

QString KeyOf(const std::string& section, const std::string& name) {
  QStringList levels;
  for (const QString& level : ToQt(section).split(QLatin1Char('\\'), Qt::SkipEmptyParts)) {
    levels << EncodedLevel(level);
  }
  return (levels << EncodedLevel(ToQt(name))).join(QLatin1Char('/'));
}

}  // namespace

SettingsStore::SettingsStore() = default;

SettingsStore::SettingsStore(const std::string& path) : path_(ToQt(path)) {}

std::optional<Value> SettingsStore::Read(const std::string& section, const std::string& name) const {
  const QVariant stored = Open()->value(KeyOf(section, name));
  // A text with commas that was written by hand comes as a list.
  if (stored.typeId() == QMetaType::QStringList) {
    return SettingValue(FromQt(stored.toStringList().join(QLatin1Char(','))));
  }
  if (!stored.isValid() || !stored.canConvert<QString>() || stored.typeId() == QMetaType::QByteArray) {
    return std::nullopt;
  }
  return SettingValue(FromQt(stored.toString()));
}

void SettingsStore::Write(const std::string& section, const std::string& name, const Value& value) {
  const auto settings = Open();
  const QString key = KeyOf(section, name);
  const QString text = ToQt(SettingText(value));
  // Most windows close where they opened, and each writing costs a new file.
  if (settings->value(key) == QVariant(text)) return;
  settings->setValue(key, text);
  settings->sync();
  if (settings->status() == QSettings::AccessError) {
    throw platform::Failure(platform::failure_number::kInvalidArgument,
                            "Cannot write the setting " + name + " to " + FromQt(settings->fileName()));
  }
}

std::unique_ptr<QSettings> SettingsStore::Open() const {
  // A new one for every operation, since the status of an old one never becomes good again.
  if (!path_.isEmpty()) return std::make_unique<QSettings>(path_, QSettings::IniFormat);
  return std::make_unique<QSettings>(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("Tessaro"),
                                     QStringLiteral("Ferrowind"));
}

}  // namespace ferrowind::qt
