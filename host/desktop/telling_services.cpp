#include "host/desktop/telling_services.h"

#include <utility>

namespace ferrowind::host {
namespace {

class MessageScope {
 public:
  explicit MessageScope(OperatorNews& news) : news_(news) { news_.MessageOpens(); }
  ~MessageScope() { news_.MessageClosed(); }
  MessageScope(const MessageScope&) = delete;
  MessageScope& operator=(const MessageScope&) = delete;

 private:
  OperatorNews& news_;
};

}  // namespace

TellingServices::TellingServices(OperatorNews& news, qt::SettingsStore settings,
                                 std::shared_ptr<TraceSink> trace)
    : QtSharedServices(std::move(settings), std::move(trace)), news_(news) {}

std::int32_t TellingServices::ShowMessage(const std::string& text, std::int32_t style, std::int32_t buttons,
                                          std::int32_t default_button, platform::Form* owner,
                                          const std::string& title, bool modal, bool on_top) {
  const MessageScope scope(news_);
  return QtSharedServices::ShowMessage(text, style, buttons, default_button, owner, title, modal, on_top);
}

void TellingServices::ReportError(std::int32_t number, const std::string& description) {
  news_.FailureShown(description);
  const MessageScope scope(news_);
  QtSharedServices::ReportError(number, description);
}

}  // namespace ferrowind::host
