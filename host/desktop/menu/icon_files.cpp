// Paints the program's icon into files, in the sizes that desktops show.
// usage: ferrowind_icon_files FOLDER    writes FOLDER/48x48/apps/ferrowind.png and so on

#include <QDir>
#include <QIcon>
#include <QImage>
#include <QPainter>
#include <QString>
#include <cstdlib>
#include <iostream>

#include "ferrowind/adapters/qt/look/program_icon.h"

namespace {

bool WriteIcon(const QString& folder, int side) {
  QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  ferrowind::qt::ProgramIcon().paint(&painter, QRect(0, 0, side, side));
  painter.end();
  const QString apps = QStringLiteral("%1/%2x%2/apps").arg(folder).arg(side);
  return QDir().mkpath(apps) && image.save(apps + QStringLiteral("/ferrowind.png"));
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: ferrowind_icon_files FOLDER\n";
    return EXIT_FAILURE;
  }
  for (const int side : {16, 22, 24, 32, 48, 64, 128, 256}) {
    if (WriteIcon(QString::fromLocal8Bit(argv[1]), side)) continue;
    std::cerr << "ferrowind_icon_files: cannot write the icon of " << side << " pixels to " << argv[1]
              << '\n';
    return EXIT_FAILURE;
  }
  return EXIT_SUCCESS;
}
