#include "host/desktop/start_page.h"

#include <QScreen>
#include <QShortcut>

#include "host/delivery/delivered_tables.h"
#include "host/desktop/window_memory.h"

namespace ferrowind::host {
namespace {

constexpr const char* kForm = "fmReadiness";
/// What the board is best read at; a smaller screen leaves some room around the window.
constexpr QSize kSize(1040, 760);
constexpr double kShareOfScreen = 0.92;

}  // namespace

StartPage::StartPage(DesktopSurroundings& surroundings, OperatorNews& news, BackOfficeWindow& window)
    : platform_(surroundings.Get()), day_read_(platform_.clock.Today()) {
  surroundings.Toolkit().PlaceForm(kForm, window.PlaceOfStartPage());
  PlanningWindows& windows = surroundings.Windows();
  board_ = fmReadiness::Create({platform_, DeliveredDateTables(), windows}, fmReadiness::DoorsTo(windows));
  changed_ = news.OnChange([this] { is_out_of_date_ = true; });
  connect(&window, &BackOfficeWindow::Activated, this, &StartPage::FollowWhenOld);
  auto* const refresh = new QShortcut(Qt::Key_F5, &window);
  connect(refresh, &QShortcut::activated, this, &StartPage::Read);
  window.resize(kSize.boundedTo(window.screen()->availableSize() * kShareOfScreen));
  const WindowMemory memory(window, "Back office");
  memory.Restore();
  window.AskBeforeClosing([&windows, memory] {
    memory.Save();
    return windows.CloseAll();
  });
  since_read_.start();
  board_->Show();
}

StartPage::~StartPage() = default;

void StartPage::FollowWhenOld() {
  const bool is_old = since_read_.hasExpired(kFreshMilliseconds) || platform_.clock.Today() != day_read_;
  if (is_out_of_date_ || is_old) Read();
}

void StartPage::Read() {
  is_out_of_date_ = false;
  since_read_.restart();
  day_read_ = platform_.clock.Today();
  board_->Refresh();
}

}  // namespace ferrowind::host
