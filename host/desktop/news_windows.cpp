#include "host/desktop/news_windows.h"

#include <QString>
#include <string>

namespace ferrowind::host {

NewsWindows::NewsWindows(OperatorNews& news, BackOfficeWindow& window)
    : footer_(window),
      subscriptions_{news.OnTrouble([this, &window](const std::string& text) {
                       footer_.TellTrouble(QString::fromStdString(text));
                       window.TellTrouble(QString::fromStdString(text));
                     }),
                     news.OnNote([this, &window](const std::string& text) {
                       footer_.TellNote(QString::fromStdString(text));
                       window.TellNote(QString::fromStdString(text));
                     })} {
  QObject::connect(&footer_, &NewsFooter::Carried, &window, &BackOfficeWindow::SetTroubleToldElsewhere);
  const auto dismiss = [&news] { news.Dismiss(); };
  QObject::connect(&footer_, &NewsFooter::Dismissed, &footer_, dismiss);
  QObject::connect(&window, &BackOfficeWindow::TroubleDismissed, &footer_, dismiss);
}

}  // namespace ferrowind::host
