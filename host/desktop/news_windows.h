#pragma once

#include <array>

#include "host/desktop/back_office_window.h"
#include "host/desktop/news_footer.h"
#include "host/desktop/operator_news.h"

namespace ferrowind::host {

/// Has the windows show the news as long as it lives: the trouble in one of them at a time, the note in the
/// status line of the back office and where the operator works.
class NewsWindows {
 public:
  /// Both must outlive this object.
  NewsWindows(OperatorNews& news, BackOfficeWindow& window);
  NewsWindows(const NewsWindows&) = delete;
  NewsWindows& operator=(const NewsWindows&) = delete;

 private:
  NewsFooter footer_;
  std::array<platform::Subscription, 2> subscriptions_;
};

}  // namespace ferrowind::host
