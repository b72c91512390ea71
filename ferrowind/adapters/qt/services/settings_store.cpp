#include "ferrowind/adapters/qt/services/settings_store.h"

#include <QCoreApplication>
#include <QFile>
#include <QStringList>
#include <QVariant>

#include "ferrowind/adapters/operator_services/setting_text.h"
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

int DigitOf(char character) {
  if (character >= '0' && character <= '9') return character - '0';
  const char small = static_cast<char>(character | 0x20);
  return small >= 'a' && small <= 'f' ? small - 'a' + 10 : 16;
}

/// What Qt makes of the text of a file's values: without quotes and escapes, as far as it is of ASCII.
QByteArray WithoutEscapes(const QByteArray& bytes) {
  constexpr int kGreatest = 0x10000;
  QByteArray plain;
  for (qsizetype i = 0; i < bytes.size(); ++i) {
    if (bytes[i] == '"') continue;
    if (bytes[i] != '\\') {
      plain += bytes[i];
      continue;
    }
    ++i;
    const bool is_hex = i < bytes.size() && bytes[i] == 'x';
    const int base = is_hex ? 16 : 8;
    if (is_hex) ++i;
    int code = 0;
    qsizetype digits = 0;
    for (; i + digits < bytes.size() && DigitOf(bytes[i + digits]) < base; ++digits) {
      code = (code * base + DigitOf(bytes[i + digits])) % kGreatest;
    }
    if (digits > 0) plain += static_cast<char>(code);
    // What is no number is a control character, or dropped.
    i += digits > 0 ? digits - 1 : is_hex ? -1 : 0;
  }
  return plain;
}

/// Qt would unpack values of these kinds into objects of whatever type and size they say. This store has
/// texts alone, and others may write to the file.
bool HasPackedValues(const QString& path) {
  constexpr qint64 kMostBytes = 16 * 1024 * 1024;
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return false;
  const QByteArray plain = WithoutEscapes(file.read(kMostBytes));
  return !file.atEnd() || plain.contains("@Variant(") || plain.contains("@DateTime(");
}

platform::Failure NotWritten(const std::string& name, const QString& path) {
  return {platform::failure_number::kInvalidArgument,
          "Cannot write the setting " + name + " to " + FromQt(path)};
}

/// Keeps what others may want to look at. False when that cannot be done.
bool SetAside(const QString& path) {
  const QString aside = path + QStringLiteral(".refused");
  QFile::remove(aside);
  return QFile::rename(path, aside);
}

}  // namespace

SettingsStore::SettingsStore() = default;

SettingsStore::SettingsStore(const std::string& path) : path_(ToQt(path)) {}

SettingsStore SettingsStore::OfProgram() {
  SettingsStore store;
  store.is_of_program_ = true;
  return store;
}

std::optional<Value> SettingsStore::Read(const std::string& section, const std::string& name) const {
  const auto settings = Open();
  if (HasPackedValues(settings->fileName())) return std::nullopt;
  const QVariant stored = settings->value(KeyOf(section, name));
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
  auto settings = Open();
  if (HasPackedValues(settings->fileName())) {
    const QString path = settings->fileName();
    settings.reset();
    if (!SetAside(path)) throw NotWritten(name, path);
    settings = Open();
  }
  const QString key = KeyOf(section, name);
  const QString text = ToQt(SettingText(value));
  // Most windows close where they opened, and each writing costs a new file.
  if (settings->value(key) == QVariant(text)) return;
  settings->setValue(key, text);
  settings->sync();
  if (settings->status() == QSettings::AccessError) {
    throw NotWritten(name, settings->fileName());
  }
}

std::unique_ptr<QSettings> SettingsStore::Open() const {
  // A new one for every operation, since the status of an old one never becomes good again.
  if (!path_.isEmpty()) return std::make_unique<QSettings>(path_, QSettings::IniFormat);
  const QString family = QStringLiteral("Tessaro");
  if (!is_of_program_) {
    return std::make_unique<QSettings>(QSettings::NativeFormat, QSettings::UserScope, family,
                                       QStringLiteral("Ferrowind"));
  }
  const QString organization = QCoreApplication::organizationName();
  return std::make_unique<QSettings>(QSettings::NativeFormat, QSettings::UserScope,
                                     organization.isEmpty() ? family : organization,
                                     QCoreApplication::applicationName());
}

}  // namespace ferrowind::qt
