#pragma once

#include <memory>
#include <string>

#include "ferrowind/platform/toolkit/toolkit.h"

namespace ferrowind {

/// The wait notice: a box without a title and one centred line of text, to be shown before a long operation
/// and unloaded after it. No operation of the component opens one.
class fmWait {
 public:
  explicit fmWait(platform::Toolkit& toolkit);
  fmWait(const fmWait&) = delete;
  fmWait& operator=(const fmWait&) = delete;

  void SetMessage(const std::string& message);
  /// Returns at once; the notice stays until `Unload`.
  void Show();
  void Unload();

 private:
  std::shared_ptr<platform::Form> form_;
};

}  // namespace ferrowind
