#include "ferrowind/adapters/qt/year/year_printing.h"

#include <QPageSize>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>

#include "ferrowind/adapters/qt/controls/modal_show.h"
#include "ferrowind/adapters/qt/values/qt_text.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::qt {
namespace {

/// False when the operator chose no printer.
bool ChoosePrinter(QPrinter& printer) {
  QWidget* owner = ModalShow::OwnerOf(nullptr);
  // Not on the stack: the owner takes the dialog with it when it is deleted while the dialog is open.
  const QPointer<QPrintDialog> dialog = new QPrintDialog(&printer, owner);
  dialog->setObjectName(QStringLiteral("fmPrint"));
  const ModalShow show(*dialog, owner);
  const int answer = dialog->exec();
  const bool is_gone = dialog.isNull() || show.IsInterrupted();
  delete dialog;
  if (is_gone) throw platform::Interruption("Nobody has chosen a printer");
  return answer == QDialog::Accepted;
}

}  // namespace

bool PrintOnChosenPrinter(const YearPages& pages) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(pages.Heading());
  printer.setCreator(QStringLiteral("Ferrowind"));
  printer.setPageOrientation(pages.Orientation());
  if (!ChoosePrinter(printer)) return false;
  bool is_printed = false;
  QPainter painter;
  if (painter.begin(&printer)) {
    const qreal scale = printer.resolution() / YearPages::kUnitsAnInch;
    painter.scale(scale, scale);
    const QSizeF page = printer.pageRect(QPrinter::Inch).size() * YearPages::kUnitsAnInch;
    is_printed = true;
    pages.PaintOnPages(painter, page, [&] { is_printed = printer.newPage() && is_printed; });
    is_printed = painter.end() && is_printed;
  }
  if (!is_printed) {
    throw platform::Failure(platform::failure_number::kInvalidArgument,
                            "The printer " + FromQt(printer.printerName()) + " does not take the pages");
  }
  return true;
}

}  // namespace ferrowind::qt
