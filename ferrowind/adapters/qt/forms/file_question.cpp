#include "ferrowind/adapters/qt/forms/file_question.h"

#include <QFileDialog>
#include <QPointer>
#include <QStandardPaths>
#include <QStringList>

#include "ferrowind/adapters/qt/controls/modal_show.h"
#include "ferrowind/adapters/qt/values/qt_text.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::qt {
namespace {

QString FilterOf(const platform::FileKind& kind) {
  return QStringLiteral("%1 (*.%2)").arg(ToQt(kind.caption), ToQt(kind.suffix));
}

}  // namespace

std::optional<QString> AskForFileToSave(const QString& title, const QString& suggested_name,
                                        const std::vector<platform::FileKind>& kinds, const QString& folder) {
  QWidget* owner = ModalShow::OwnerOf(nullptr);
  // Not on the stack: the owner takes the question with it when it is deleted while that is open.
  const QPointer<QFileDialog> question = new QFileDialog(owner, title);
  question->setObjectName(QStringLiteral("fmChooseFile"));
  question->setAcceptMode(QFileDialog::AcceptSave);
  question->setFileMode(QFileDialog::AnyFile);
  question->setDirectory(
      folder.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) : folder);
  QStringList filters;
  for (const platform::FileKind& kind : kinds) filters.append(FilterOf(kind));
  question->setNameFilters(filters);
  question->setDefaultSuffix(ToQt(kinds.front().suffix));
  QObject::connect(question, &QFileDialog::filterSelected, question, [&](const QString& filter) {
    for (const platform::FileKind& kind : kinds) {
      if (FilterOf(kind) == filter) question->setDefaultSuffix(ToQt(kind.suffix));
    }
  });
  question->selectFile(suggested_name);
  const ModalShow show(*question, owner);
  const bool is_chosen = question->exec() == QDialog::Accepted;
  const QStringList files = question ? question->selectedFiles() : QStringList();
  const bool is_interrupted = !question || show.IsInterrupted();
  delete question;
  if (is_interrupted) {
    throw platform::Interruption("The window that the question for a file belongs to has closed");
  }
  if (!is_chosen || files.isEmpty()) return std::nullopt;
  return files.front();
}

}  // namespace ferrowind::qt
