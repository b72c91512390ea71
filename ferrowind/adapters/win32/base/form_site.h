#pragma once

#include <memory>
#include <string>

#include "ferrowind/adapters/win32/base/theme.h"
#include "ferrowind/adapters/win32/base/windows_api.h"

namespace ferrowind::win32 {

/// What everything in a form knows of it, for as long as anybody asks: also when the form itself is gone.
struct FormSite {
  /// `platform::Element::Name`.
  std::string name;
  /// Null once the window is gone.
  HWND window = nullptr;
  /// Between being shown and being hidden; a locked window tells otherwise of itself.
  bool is_shown = false;
  /// The form was dropped: nothing of it raises events any more.
  bool is_retired = false;
  /// What its windows are painted in; null for the platform's colours. They outlive the windows.
  const Theme* colors = nullptr;
  /// How many messages and events of the form are being handled now, one inside the other.
  int work_under_way = 0;
};

/// A form whose message or event is being handled for as long as this lives; until then it is not deleted.
class AtWork {
 public:
  explicit AtWork(std::shared_ptr<FormSite> site) : site_(std::move(site)) { ++site_->work_under_way; }
  ~AtWork() { --site_->work_under_way; }
  AtWork(const AtWork&) = delete;
  AtWork& operator=(const AtWork&) = delete;

 private:
  std::shared_ptr<FormSite> site_;
};

}  // namespace ferrowind::win32
