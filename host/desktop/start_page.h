#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <memory>

#include "ferrowind/views/planning/fm_readiness.h"

#include "host/desktop/back_office_window.h"
#include "host/desktop/desktop_surroundings.h"
#include "host/desktop/operator_news.h"

namespace ferrowind::host {

/// The readiness board as the start page of the back office, which gets the room for it.
///
/// The board follows at once what the windows of planning change. Whatever else may have changed it shows
/// when the operator comes back to it, so that no other work waits for its reading: after a change by this
/// program, on another day, and when it was read a while ago.
class StartPage : public QObject {
  Q_OBJECT

 public:
  /// All must outlive this object.
  StartPage(DesktopSurroundings& surroundings, OperatorNews& news, BackOfficeWindow& window);
  ~StartPage() override;

  /// After which the board is read again when the operator comes back to it.
  static constexpr int kFreshMilliseconds = 60000;

 private:
  void FollowWhenOld();
  void Read();

  const platform::Platform& platform_;
  std::shared_ptr<fmReadiness> board_;
  platform::Subscription changed_;
  QElapsedTimer since_read_;
  platform::Date day_read_;
  bool is_out_of_date_ = false;
};

}  // namespace ferrowind::host
