#include "bench/window_stage.h"

#include <QAbstractEventDispatcher>
#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QTimer>
#include <exception>
#include <stdexcept>
#include <utility>

#include "ferrowind/adapters/qt/grid/grid_widget.h"
#include "ferrowind/adapters/sqlite/database_file.h"
#include "ferrowind/adapters/sqlite/database_handle.h"
#include "ferrowind/data/module_state.h"

namespace ferrowind::bench {
namespace {

constexpr double kPatience = 10000;

/// Calls back, once, after the grid of the Holidays window has been painted.
class HolidaysPainted : public QObject {
 public:
  explicit HolidaysPainted(std::function<void(QWidget& holidays)> painted) : painted_(std::move(painted)) {
    qApp->installEventFilter(this);
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint && painted_) CallFor(*watched);
    return QObject::eventFilter(watched, event);
  }

 private:
  void CallFor(QObject& watched) {
    auto* grid = qobject_cast<qt::GridView*>(watched.parent());
    if (grid == nullptr || grid->viewport() != &watched) return;
    QWidget* window = grid->window();
    if (window->objectName() != QLatin1String("fmEnterHolidays")) return;
    // The grid paints when this filter has returned.
    QTimer::singleShot(0, this, [window, call = std::exchange(painted_, nullptr)] { call(*window); });
  }

  std::function<void(QWidget& holidays)> painted_;
};

}  // namespace

PaintWatch::PaintWatch(QWidget& widget) { widget.installEventFilter(this); }

void PaintWatch::WaitUntilPainted() const {
  const Watch watch;
  while (!is_painted_) {
    if (watch.Milliseconds() > kPatience) throw std::runtime_error("nothing was painted");
    QCoreApplication::processEvents();
  }
}

void LetWindowsRest() {
  auto* dispatcher = QAbstractEventDispatcher::instance();
  const Watch watch;
  const auto wait = [&] {
    while (dispatcher->processEvents(QEventLoop::AllEvents)) {
      if (watch.Milliseconds() > kPatience) throw std::runtime_error("the windows never rest");
    }
  };
  wait();
  // The event loop of a program deletes closed windows, and none runs here.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  wait();
}

bool PaintWatch::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Paint) is_painted_ = true;
  return QObject::eventFilter(watched, event);
}

QWidget& WindowNamed(const std::string& name) {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    const bool is_shown = window->isVisible() || qobject_cast<QMenu*>(window) != nullptr;
    if (is_shown && window->objectName().toStdString() == name) return *window;
  }
  throw std::runtime_error("no window " + name);
}

qt::GridView& GridIn(const QWidget& window) { return window.findChild<qt::GridWidget*>()->View(); }

void PressKey(QWidget& widget, int key, Qt::KeyboardModifiers modifiers) {
  for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event(type, key, modifiers);
    QApplication::sendEvent(&widget, &event);
  }
}

WindowStage::WindowStage(const std::string& fill, Additions additions) {
  if (additions == Additions::kNone) platform_.additions = nullptr;
  sqlite::CreateDatabase(DatabasePath());
  sqlite::DatabaseHandle(DatabasePath()).Execute(fill.c_str());
  surroundings_.UseDatabase("sqlite:" + DatabasePath());
}

WindowStage::WindowStage(const Elsewhere& database) {
  platform_.additions = nullptr;
  surroundings_.UseDatabase(database.connection_string);
}

WindowStage::~WindowStage() {
  control_.reset();
  // A closed window is deleted by the event loop, and needs its surroundings until then.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void WindowStage::PlaceControl() {
  // The stage before this one has left its objects in the thread's state.
  Module() = ModuleState();
  control_ = std::make_unique<Calendar>(Platform());
}

void WindowStage::ShowCalendar(const std::string& currency) {
  control_->Show();
  QTreeView& tree = Tree();
  tree.setFocus();
  const QAbstractItemModel& currencies = *tree.model();
  int row = 0;
  while (row < currencies.rowCount() && currencies.index(row, 0).data().toString().toStdString() != currency)
    ++row;
  tree.setCurrentIndex(currencies.index(row, 0));
  PressKey(tree, Qt::Key_Right);
  PressKey(tree, Qt::Key_Down);
}

void WindowStage::CloseCalendars() {
  if (!control_->ForceClosing()) throw std::logic_error("the Calendars window stays open");
}

void WindowStage::OpenCalendars(const std::string& currency) {
  PlaceControl();
  ShowCalendar(currency);
  QCoreApplication::processEvents();
  GridIn(Calendars()).SetCurrentRow(0);
  if (GridIn(Calendars()).Model()->rowCount() == 0) throw std::runtime_error("no days of " + currency);
}

QWidget& WindowStage::Calendars() const { return WindowNamed("fmCalendar"); }

QTreeView& WindowStage::Tree() const { return *Calendars().findChild<QTreeView*>("tvCalendar"); }

void WindowStage::InHolidays(const std::function<void(QWidget& holidays)>& work) const {
  std::exception_ptr failure;
  const HolidaysPainted painted([&](QWidget& holidays) {
    try {
      work(holidays);
    } catch (...) {
      failure = std::current_exception();
    }
    holidays.close();
  });
  auto& menu = dynamic_cast<QMenu&>(WindowNamed("ID_StatesMenu"));
  for (QAction* action : menu.actions()) {
    if (action->objectName() == QLatin1String("ID_AssignMany")) action->trigger();
  }
  if (failure) std::rethrow_exception(failure);
}

}  // namespace ferrowind::bench
