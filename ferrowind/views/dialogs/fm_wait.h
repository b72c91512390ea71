#pragma once

#include <memory>
#include <string>

#include "ferrowind/platform/toolkit/toolkit.h"

namespace ferrowind {

/// The wait notice: a box without a title and one centred line of text, for the host of a long operation to
/// show and hide around it.
class fmWait {
 public:
  explicit fmWait(platform::Toolkit& toolkit);

  void SetMessage(const std::string& message);
  void Show();
  void Unload();

 private:
  std::shared_ptr<platform::Form> form_;
};

}  // namespace ferrowind
