#pragma once

#include <memory>

#include "ferrowind/adapters/qt/services/qt_shared_services.h"

#include "host/desktop/operator_news.h"

namespace ferrowind::host {

/// The shared services of the desktop; the news learn of each message that the operator is shown.
class TellingServices : public qt::QtSharedServices {
 public:
  /// `news` must outlive this object.
  TellingServices(OperatorNews& news, qt::SettingsStore settings, std::shared_ptr<TraceSink> trace);

  std::int32_t ShowMessage(const std::string& text, std::int32_t style, std::int32_t buttons,
                           std::int32_t default_button, platform::Form* owner, const std::string& title,
                           bool modal, bool on_top) override;
  void ReportError(std::int32_t number, const std::string& description) override;

 private:
  OperatorNews& news_;
};

}  // namespace ferrowind::host
