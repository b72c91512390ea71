#include "host/desktop/back_office_window.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStatusBar>
#include <QVBoxLayout>

#include "ferrowind/adapters/qt/values/translated.h"
#include "ferrowind/control/calendar.h"
#include "ferrowind/platform/values/conversion.h"

namespace ferrowind::host {
namespace {

QString VersionText() {
  const auto version = Calendar::Version();
  return QStringLiteral("%1 %2.%3.%4")
      .arg(QString::fromStdString(platform::ToText(version[0])))
      .arg(platform::ToInt16(version[1]))
      .arg(platform::ToInt16(version[2]))
      .arg(platform::ToInt16(version[3]));
}

QLabel* MakeDatabaseName(const QString& database) {
  auto* const name = new QLabel(database);
  name->setObjectName(QStringLiteral("database"));
  name->setTextFormat(Qt::PlainText);
  name->setWordWrap(true);
  return name;
}

/// For whoever has to tell somebody else: it can be selected and copied, and a long one scrolls.
QLineEdit* MakeAddress(const QString& url) {
  auto* const address = new QLineEdit(url);
  address->setObjectName(QStringLiteral("databaseAddress"));
  address->setAccessibleName(qt::Translated("Address of the database"));
  address->setReadOnly(true);
  address->setFrame(false);
  address->setToolTip(url);
  address->setCursorPosition(0);
  QPalette colors = address->palette();
  colors.setColor(QPalette::Base, Qt::transparent);
  colors.setBrush(QPalette::Text, colors.windowText());
  address->setPalette(colors);
  // In line with the labels above.
  address->setTextMargins(-2, 0, 0, 0);
  return address;
}

}  // namespace

BackOfficeWindow::BackOfficeWindow(const platform::Platform& platform, const QString& database,
                                   const QString& url)
    : control_(new qt::CalendarWidget(platform)), trouble_(new TroubleBar), start_page_(new QWidget) {
  setObjectName(QStringLiteral("backOffice"));
  setWindowTitle(qt::Translated("Back office"));

  auto* const title = new QLabel(qt::Translated("Business-day calendars"));
  QFont title_font = title->font();
  title_font.setPointSizeF(title_font.pointSizeF() * 1.4);
  title_font.setBold(true);
  title->setFont(title_font);
  auto* const version = new QLabel(VersionText());
  version->setObjectName(QStringLiteral("version"));

  auto* const heading = new QHBoxLayout;
  heading->addWidget(control_);
  heading->addWidget(title);
  heading->addStretch();
  heading->addWidget(version);

  auto* const open = new QPushButton(qt::Translated("&Open calendars"));
  open->setObjectName(QStringLiteral("openCalendars"));
  connect(open, &QPushButton::clicked, this, &BackOfficeWindow::OpenCalendars);
  auto* const close = new QPushButton(qt::Translated("&Close calendars"));
  close->setObjectName(QStringLiteral("closeCalendars"));
  connect(close, &QPushButton::clicked, this, &BackOfficeWindow::CloseCalendars);

  auto* const name = new QVBoxLayout;
  name->setSpacing(2);
  name->addWidget(MakeDatabaseName(database));
  name->addWidget(MakeAddress(url));
  auto* const place = new QHBoxLayout;
  place->addLayout(name, 1);
  place->addWidget(open);
  place->addWidget(close);

  auto* const start_page = new QVBoxLayout(start_page_);
  start_page->setContentsMargins({});

  auto* const content = new QWidget;
  auto* const layout = new QVBoxLayout(content);
  layout->setContentsMargins(20, 20, 20, 20);
  layout->setSpacing(16);
  layout->addLayout(heading);
  layout->addLayout(place);
  layout->addWidget(trouble_);
  layout->addWidget(start_page_, 1);
  setCentralWidget(content);
  resize(520, 200);
  open->setFocus();
  connect(trouble_, &TroubleBar::Dismissed, this, &BackOfficeWindow::TroubleDismissed);
}

// While this window is whole: the Calendars window lets pending events run when it closes.
BackOfficeWindow::~BackOfficeWindow() { delete control_; }

void BackOfficeWindow::OpenCalendars() { control_->ShowInFront(); }

void BackOfficeWindow::TellTrouble(const QString& text) {
  trouble_text_ = text;
  ShowTrouble();
}

void BackOfficeWindow::TellNote(const QString& text) {
  statusBar()->showMessage(text);
  statusBar()->setToolTip(text);
}

void BackOfficeWindow::SetTroubleToldElsewhere(bool is_elsewhere) {
  is_told_elsewhere_ = is_elsewhere;
  ShowTrouble();
}

void BackOfficeWindow::ShowTrouble() {
  trouble_->Tell(is_told_elsewhere_ ? QString() : trouble_text_);
  const QWidget& content = *centralWidget();
  const int missing = content.layout()->totalHeightForWidth(content.width()) - content.height();
  if (missing > 0) resize(width(), height() + missing);
}

void BackOfficeWindow::CloseCalendars() {
  if (!control_->Control().ForceClosing())
    statusBar()->showMessage(qt::Translated("The Calendars window is busy."), 5000);
}

void BackOfficeWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) emit Activated();
}

void BackOfficeWindow::closeEvent(QCloseEvent* event) {
  if ((!may_close_ || may_close_()) && control_->Control().ForceClosing()) {
    event->accept();
  } else {
    event->ignore();
  }
}

}  // namespace ferrowind::host
