#include "ferrowind/adapters/qt/controls/element.h"

#include <QLoggingCategory>
#include <exception>

#include "ferrowind/adapters/qt/values/qt_text.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::qt {
namespace {

Q_LOGGING_CATEGORY(events_log, "ferrowind.events")

}  // namespace

void RunGuarded(const std::string& element, const std::function<void()>& handler) noexcept {
  try {
    handler();
  } catch (const platform::Failure& failure) {
    qCWarning(events_log).noquote() << "An event handler of" << ToQt(element) << "failed with number"
                                    << failure.Number() << "-" << ToQt(failure.Description());
  } catch (const std::exception& error) {
    qCWarning(events_log).noquote() << "An event handler of" << ToQt(element) << "failed:" << error.what();
  } catch (...) {
    qCWarning(events_log).noquote() << "An event handler of" << ToQt(element) << "failed";
  }
}

}  // namespace ferrowind::qt
