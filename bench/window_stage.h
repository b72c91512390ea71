#pragma once

#include <QTemporaryDir>
#include <QTreeView>
#include <QWidget>
#include <chrono>
#include <functional>
#include <memory>
#include <string>

#include "ferrowind/adapters/qt/grid/grid_view.h"
#include "ferrowind/adapters/qt/services/qt_locale.h"
#include "ferrowind/control/calendar.h"

#include "host/desktop/desktop_surroundings.h"
#include "host/desktop/operator_news.h"

namespace ferrowind::bench {

/// Milliseconds from the making of the watch.
class Watch {
 public:
  [[nodiscard]] double Milliseconds() const {
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start_).count();
  }

 private:
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

/// Tells whether a widget has been painted since the watch was made, and lets events run until it has.
class PaintWatch : public QObject {
 public:
  explicit PaintWatch(QWidget& widget);
  /// An error after ten seconds.
  void WaitUntilPainted() const;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool is_painted_ = false;
};

/// Lets events run until none is left, and closed windows are gone: what one side of a comparison leaves over
/// must not fall into the other one's time. An error after ten seconds.
void LetWindowsRest();

/// The component's windows as the desktop program puts them together, over a database in a temporary folder.
class WindowStage {
 public:
  /// Whether the windows have the additions that the desktop asks for, or are the given ones.
  enum class Additions { kAll, kNone };

  /// `fill` is SQL that is run on the database, which has no delivered rules.
  explicit WindowStage(const std::string& fill, Additions additions = Additions::kNone);
  /// Over the database of a connection string instead, without additions.
  struct Elsewhere {
    std::string connection_string;
  };
  explicit WindowStage(const Elsewhere& database);
  ~WindowStage();

  [[nodiscard]] std::string DatabasePath() const { return folder_.filePath("calendars.db").toStdString(); }
  [[nodiscard]] const platform::Platform& Platform() const { return platform_; }

  /// Makes the control, as a host does that starts. Called once; a stage on which it was called before must
  /// be gone.
  void PlaceControl();
  /// Opens the placed control's Calendars window and selects the first calendar of the currency.
  void ShowCalendar(const std::string& currency);
  void CloseCalendars();
  /// `PlaceControl` and `ShowCalendar`, and waits until the days are on show.
  void OpenCalendars(const std::string& currency);
  [[nodiscard]] QWidget& Calendars() const;
  [[nodiscard]] QTreeView& Tree() const;

  /// Opens the Holidays window for the whole calendar as the day's menu does, and has `work` done as soon as
  /// its grid is painted. The window is closed after that; returns when it is. What `work` throws is passed
  /// on.
  void InHolidays(const std::function<void(QWidget& holidays)>& work) const;

 private:
  QTemporaryDir folder_;
  qt::QtLocale locale_;
  /// As the desktop has them; nobody reads them.
  host::OperatorNews news_{locale_, [] { return std::string(); }};
  host::DesktopSurroundings surroundings_{news_};
  platform::Platform platform_ = surroundings_.Get();
  std::unique_ptr<Calendar> control_;
};

/// The window of that name on show; none is an error.
[[nodiscard]] QWidget& WindowNamed(const std::string& name);
[[nodiscard]] qt::GridView& GridIn(const QWidget& window);
void PressKey(QWidget& widget, int key, Qt::KeyboardModifiers modifiers = {});

}  // namespace ferrowind::bench
