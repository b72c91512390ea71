#include "ferrowind/adapters/qt/services/message_box.h"

#include <QApplication>
#include <QClipboard>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QShortcut>

#include "ferrowind/adapters/qt/controls/modal_show.h"
#include "ferrowind/adapters/qt/services/application_end.h"
#include "ferrowind/adapters/qt/values/qt_text.h"
#include "ferrowind/adapters/qt/values/translated.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::qt {
namespace {

constexpr qsizetype kLongestShown = 1200;

void SetTexts(QMessageBox& box, const Message& message) {
  box.setWindowTitle(message.title);
  box.setTextFormat(Qt::PlainText);
  box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  const bool is_long = message.text.size() > kLongestShown;
  box.setText(is_long ? message.text.left(kLongestShown) + QChar(0x2026) : message.text);
  if (is_long) box.setDetailedText(message.text);
}

void AddCopyButton(QMessageBox& box, const QString& text) {
  const auto copy_text = [text] { QApplication::clipboard()->setText(text); };
  QPushButton* copy = box.addButton(Translated("&Copy"), QMessageBox::ActionRole);
  copy->setObjectName(QStringLiteral("cmdCopy"));
  copy->setAutoDefault(false);
  // The box's own connection would answer the message.
  QObject::disconnect(copy, &QPushButton::clicked, nullptr, nullptr);
  QObject::connect(copy, &QPushButton::clicked, &box, copy_text);
  QObject::connect(new QShortcut(QKeySequence::Copy, &box), &QShortcut::activated, &box, copy_text);
}

platform::Interruption NotAnswered(const Message& message) {
  return platform::Interruption("Nobody has answered the message \"" + FromQt(message.text) + "\"");
}

}  // namespace

void ShowMessageBox(const Message& message) {
  // The question runs what is pending, which may be the end of the owner.
  const QPointer<QWidget> given_owner = message.owner;
  if (IsApplicationEnding()) return;
  if (message.owner != nullptr && !given_owner) throw NotAnswered(message);
  QWidget* owner = given_owner ? given_owner.data() : ModalShow::OwnerOf(nullptr);
  // Not on the stack: the owner takes the box with it when it is deleted while the message is open.
  const QPointer<QMessageBox> box = new QMessageBox(owner);
  box->setObjectName(QStringLiteral("fmSharedMessage"));
  box->setIcon(message.is_error ? QMessageBox::Critical : QMessageBox::Information);
  SetTexts(*box, message);
  AddCopyButton(*box, message.text);
  QPushButton* ok = box->addButton(QMessageBox::Ok);
  ok->setText(QStringLiteral("&Ok"));
  box->setDefaultButton(ok);
  box->setEscapeButton(ok);
  box->setWindowFlag(Qt::WindowStaysOnTopHint, message.is_on_top);
  box->setWindowModality(message.is_modal ? Qt::ApplicationModal : Qt::NonModal);
  const ModalShow show(*box, owner);
  box->exec();
  const bool is_answered = box && box->clickedButton() != nullptr;
  delete box;
  if (!is_answered) throw NotAnswered(message);
}

}  // namespace ferrowind::qt
