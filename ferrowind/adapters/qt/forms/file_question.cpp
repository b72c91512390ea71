#include "ferrowind/adapters/qt/forms/file_question.h"

#include <QAbstractFileIconProvider>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>
#include <QStandardPaths>
#include <QStringList>

#include "ferrowind/adapters/qt/controls/modal_show.h"
#include "ferrowind/adapters/qt/values/qt_text.h"
#include "ferrowind/adapters/qt/values/translated.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::qt {
namespace {

QString FilterOf(const platform::FileKind& kind) {
  return QStringLiteral("%1 (*.%2)").arg(ToQt(kind.caption), ToQt(kind.suffix));
}

/// Icons and kinds of files by their names alone. Those of Qt read the files, in the thread of the windows,
/// which a slow or lost network folder would hold up.
class IconsByName final : public QAbstractFileIconProvider {
 public:
  using QAbstractFileIconProvider::icon;
  [[nodiscard]] QIcon icon(const QFileInfo& file) const override {
    return icon(file.isDir() ? QAbstractFileIconProvider::Folder : QAbstractFileIconProvider::File);
  }
  [[nodiscard]] QString type(const QFileInfo& file) const override {
    return file.isDir() ? Translated("Folder") : file.suffix().toUpper();
  }
};

/// Where documents are kept, else at home: the folder that the program happens to run in says nothing to its
/// operator.
QString FirstFolder() {
  const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  return QFileInfo(documents).isDir() ? documents : QDir::homePath();
}

/// A question that is not shown yet.
class FileQuestion {
 public:
  FileQuestion(const QString& title, const QString& folder)
      : owner_(ModalShow::OwnerOf(nullptr)), dialog_(new QFileDialog(owner_, title)) {
    dialog_->setObjectName(QStringLiteral("fmChooseFile"));
    dialog_->setIconProvider(&icons_);
    dialog_->setDirectory(folder.isEmpty() ? FirstFolder() : folder);
  }
  ~FileQuestion() { delete dialog_; }
  FileQuestion(const FileQuestion&) = delete;
  FileQuestion& operator=(const FileQuestion&) = delete;

  [[nodiscard]] QFileDialog& Dialog() { return *dialog_; }

  /// To be asked once.
  [[nodiscard]] std::optional<QString> Ask() {
    const ModalShow show(*dialog_, owner_);
    const bool is_chosen = dialog_->exec() == QDialog::Accepted;
    if (!dialog_ || show.IsInterrupted()) {
      throw platform::Interruption("The window that the question for a file belongs to has closed");
    }
    const QStringList files = dialog_->selectedFiles();
    if (!is_chosen || files.isEmpty()) return std::nullopt;
    return files.front();
  }

 private:
  IconsByName icons_;
  QWidget* owner_;
  /// The owner takes it with it when it is deleted while the question is open.
  QPointer<QFileDialog> dialog_;
};

}  // namespace

std::optional<QString> AskForFileToSave(const QString& title, const QString& suggested_name,
                                        const std::vector<platform::FileKind>& kinds, const QString& folder) {
  FileQuestion question(title, folder);
  QFileDialog& dialog = question.Dialog();
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  QStringList filters;
  for (const platform::FileKind& kind : kinds) filters.append(FilterOf(kind));
  dialog.setNameFilters(filters);
  dialog.setDefaultSuffix(ToQt(kinds.front().suffix));
  QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&](const QString& filter) {
    for (const platform::FileKind& kind : kinds) {
      if (FilterOf(kind) == filter) dialog.setDefaultSuffix(ToQt(kind.suffix));
    }
  });
  dialog.selectFile(suggested_name);
  return question.Ask();
}

std::optional<QString> AskForFileToOpen(const QString& title, const QString& caption,
                                        const std::vector<std::string>& suffixes, const QString& folder) {
  FileQuestion question(title, folder);
  QFileDialog& dialog = question.Dialog();
  dialog.setAcceptMode(QFileDialog::AcceptOpen);
  dialog.setFileMode(QFileDialog::ExistingFile);
  QStringList patterns;
  for (const std::string& suffix : suffixes) patterns.append(QStringLiteral("*.") + ToQt(suffix));
  dialog.setNameFilters({QStringLiteral("%1 (%2)").arg(caption, patterns.join(QLatin1Char(' '))),
                         QFileDialog::tr("All Files (*)")});
  return question.Ask();
}

}  // namespace ferrowind::qt
