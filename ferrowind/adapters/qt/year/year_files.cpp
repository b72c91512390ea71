#include "ferrowind/adapters/qt/year/year_files.h"

#include <QDir>
#include <QImage>
#include <QPageSize>
#include <QPdfWriter>
#include <QSaveFile>
#include <cmath>

#include "ferrowind/adapters/qt/values/qt_text.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::qt {
namespace {

constexpr qreal kMarginMillimetres = 12;
constexpr qreal kPictureScale = 2;
constexpr qreal kPictureMargin = 32;
platform::Failure NotWritten(const QString& path, const QString& reason) {
  return {
      platform::failure_number::kInvalidArgument,
      FromQt(
          QStringLiteral("The file %1 cannot be written: %2").arg(QDir::toNativeSeparators(path), reason))};
}

void Open(QSaveFile& file) {
  if (!file.open(QIODevice::WriteOnly)) throw NotWritten(file.fileName(), file.errorString());
}

void Commit(QSaveFile& file, bool is_painted) {
  if (is_painted && file.commit()) return;
  const QString reason = file.error() == QFileDevice::NoError ? QStringLiteral("its content cannot be made")
                                                              : file.errorString();
  throw NotWritten(file.fileName(), reason);
}

QSizeF PictureRoom(const YearPages& pages) {
  const QPageLayout sheet(QPageSize(QPageSize::A4), pages.Orientation(), {});
  const QSizeF inches = sheet.fullRect(QPageLayout::Inch).size();
  return inches * YearPages::kUnitsAnInch - QSizeF(2 * kPictureMargin, 2 * kPictureMargin);
}

}  // namespace

void SaveAsPdf(const YearPages& pages, const QString& path) {
  QSaveFile file(path);
  Open(file);
  bool is_painted = false;
  {
    QPdfWriter writer(&file);
    writer.setTitle(pages.Heading());
    writer.setCreator(QStringLiteral("Ferrowind"));
    writer.setPageLayout(
        QPageLayout(QPageSize(QPageSize::A4), pages.Orientation(),
                    QMarginsF(kMarginMillimetres, kMarginMillimetres, kMarginMillimetres, kMarginMillimetres),
                    QPageLayout::Millimeter));
    const qreal scale = writer.resolution() / YearPages::kUnitsAnInch;
    QPainter painter;
    if (painter.begin(&writer)) {
      painter.scale(scale, scale);
      const QSizeF page = QSizeF(writer.pageLayout().paintRectPixels(writer.resolution()).size()) / scale;
      is_painted = true;
      pages.PaintOnPages(painter, page, [&] { is_painted = writer.newPage() && is_painted; });
      is_painted = painter.end() && is_painted;
    }
  }
  Commit(file, is_painted);
}

void SaveAsPicture(const YearPages& pages, const QString& path) {
  QSaveFile file(path);
  Open(file);
  const QSizeF page = PictureRoom(pages);
  // How high it is shows in a painting that goes nowhere.
  QImage nowhere(1, 1, QImage::Format_RGB32);
  QPainter measuring(&nowhere);
  const qreal height = pages.PaintOnRoll(measuring, page);
  measuring.end();
  QImage picture(static_cast<int>(std::ceil((page.width() + 2 * kPictureMargin) * kPictureScale)),
                 static_cast<int>(std::ceil((height + 2 * kPictureMargin) * kPictureScale)),
                 QImage::Format_RGB32);
  picture.fill(Qt::white);
  picture.setText(QStringLiteral("Title"), pages.Heading());
  QPainter painter(&picture);
  painter.scale(kPictureScale, kPictureScale);
  painter.translate(kPictureMargin, kPictureMargin);
  pages.PaintOnRoll(painter, page);
  painter.end();
  Commit(file, picture.save(&file, "PNG"));
}

}  // namespace ferrowind::qt
