#include "ferrowind/adapters/headless/headless_animation.h"

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::headless {

using platform::Failure;
namespace failure_number = platform::failure_number;

void HeadlessAnimation::Open(const std::string& path) {
  core_.Record("Open", {path});
  if (!files_.contains(path)) {
    throw Failure(failure_number::kInvalidArgument, "There is no animated image in the file " + path);
  }
  is_open_ = true;
}

void HeadlessAnimation::Play() {
  core_.Record("Play");
  if (!is_open_)
    throw Failure(failure_number::kObjectNotSet, "The animation " + Name() + " has no image open");
  is_playing_ = true;
}

void HeadlessAnimation::Stop() {
  core_.Record("Stop");
  is_playing_ = false;
}

}  // namespace ferrowind::headless
