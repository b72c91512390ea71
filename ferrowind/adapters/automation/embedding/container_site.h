#pragma once

#include <oleidl.h>

#include "ferrowind/adapters/automation/com_pointer.h"

namespace ferrowind::automation {

/// The site that the container has given the control, and whether its form is being designed there.
class ContainerSite {
 public:
  /// Null takes the site away. The mode stays as it is.
  void Set(IOleClientSite* client) { client_ = ComPointer<IOleClientSite>(client); }
  /// Null without a site.
  [[nodiscard]] const ComPointer<IOleClientSite>& Client() const { return client_; }

  /// Asks the site for the mode, which stays as it is when the site does not tell.
  void AskMode();
  void SetDesigning(bool is_designing) { is_designing_ = is_designing; }
  /// Not before a container says so: one that tells nothing has no designer.
  [[nodiscard]] bool IsDesigning() const { return is_designing_; }

 private:
  ComPointer<IOleClientSite> client_;
  bool is_designing_ = false;
};

}  // namespace ferrowind::automation
