#pragma once

#include <memory>

#include "ferrowind/platform/platform.h"

namespace ferrowind::automation {

/// What the control runs in, put together by who makes the server of it.
class Surroundings {
 public:
  virtual ~Surroundings() = default;
  /// Valid as long as this object.
  [[nodiscard]] virtual const platform::Platform& Get() const = 0;
};

/// Makes surroundings for the calling thread, which go with its last control. The dictionary and the shared
/// services that they make are kept until the thread ends, and serve its later surroundings. Not null; fails
/// with a `platform::Failure`.
using MakeSurroundings = std::unique_ptr<Surroundings> (*)();

}  // namespace ferrowind::automation
