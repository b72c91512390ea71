#include "ferrowind/adapters/qt/grid/grid_layout.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <set>

#include "ferrowind/adapters/qt/values/qt_text.h"
#include "ferrowind/platform/toolkit/grid_keys.h"
#include "ferrowind/platform/values/case_fold.h"

namespace ferrowind::qt {

namespace {

constexpr int kVersion = 1;
constexpr int kLeastWidth = 1;
constexpr int kGreatestWidth = 10000;
const QString kVersionName = QStringLiteral("gridLayout");

QJsonArray Encoded(const std::vector<GridLayout::Key>& keys) {
  QJsonArray array;
  for (const GridLayout::Key& key : keys) {
    array.append(QJsonObject{{QStringLiteral("column"), ToQt(key.column_key)},
                             {QStringLiteral("order"), key.sort_order}});
  }
  return array;
}

std::optional<std::vector<GridLayout::Key>> DecodedKeys(const QJsonValue& value) {
  if (!value.isArray()) return std::nullopt;
  std::vector<GridLayout::Key> keys;
  std::set<std::string> seen;
  for (const QJsonValue& entry : value.toArray()) {
    const QJsonValue column = entry[QStringLiteral("column")];
    const int order = entry[QStringLiteral("order")].toInt(platform::kSortAscending + 1);
    if (!column.isString() || order < platform::kSortDescending || order > platform::kSortAscending) {
      return std::nullopt;
    }
    keys.push_back({FromQt(column.toString()), order});
    if (!seen.insert(platform::FoldCase(keys.back().column_key)).second) return std::nullopt;
  }
  return keys;
}

std::optional<std::vector<GridLayout::Column>> DecodedColumns(const QJsonValue& value) {
  if (!value.isArray()) return std::nullopt;
  std::vector<GridLayout::Column> columns;
  std::set<std::string> seen;
  for (const QJsonValue& entry : value.toArray()) {
    const QJsonValue key = entry[QStringLiteral("key")];
    const QJsonValue visible = entry[QStringLiteral("visible")];
    const int width = entry[QStringLiteral("width")].toInt(0);
    if (!key.isString() || !visible.isBool() || width < kLeastWidth || width > kGreatestWidth) {
      return std::nullopt;
    }
    columns.push_back({FromQt(key.toString()), width, visible.toBool()});
    if (!seen.insert(platform::FoldCase(columns.back().key)).second) return std::nullopt;
  }
  return columns;
}

}  // namespace

std::string EncodeLayout(const GridLayout& layout) {
  QJsonArray columns;
  for (const GridLayout::Column& column : layout.columns) {
    columns.append(QJsonObject{{QStringLiteral("key"), ToQt(column.key)},
                               {QStringLiteral("width"), column.width},
                               {QStringLiteral("visible"), column.is_visible}});
  }
  const QJsonObject object{{kVersionName, kVersion},
                           {QStringLiteral("columns"), columns},
                           {QStringLiteral("sort"), Encoded(layout.sort_keys)},
                           {QStringLiteral("groups"), Encoded(layout.group_keys)}};
  return QJsonDocument(object).toJson(QJsonDocument::Compact).toStdString();
}

std::optional<GridLayout> DecodeLayout(const std::string& text) {
  const QJsonDocument document = QJsonDocument::fromJson(QByteArray::fromStdString(text));
  if (!document.isObject()) return std::nullopt;
  const QJsonObject object = document.object();
  if (object[kVersionName].toInt(0) != kVersion) return std::nullopt;
  auto columns = DecodedColumns(object[QStringLiteral("columns")]);
  auto sort_keys = DecodedKeys(object[QStringLiteral("sort")]);
  auto group_keys = DecodedKeys(object[QStringLiteral("groups")]);
  if (!columns || !sort_keys || !group_keys) return std::nullopt;
  return GridLayout{*std::move(columns), *std::move(sort_keys), *std::move(group_keys)};
}

}  // namespace ferrowind::qt
