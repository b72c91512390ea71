#include "host/admin/day_reloader.h"

#include <chrono>
#include <exception>
#include <ostream>

#include "host/admin/text_escapes.h"

namespace ferrowind::host {
namespace {

/// Of databases that cannot tell of changes.
constexpr std::chrono::seconds kPauseWithoutWatch{10};

}  // namespace

DayReloader::DayReloader(const platform::EngineRegistry& engines, const std::string& url,
                         loading::DayLoader& loader, std::ostream& errors)
    : loader_(loader),
      errors_(errors),
      watch_(engines.EngineFor(url).Watch(url)),
      thread_([this] { Run(); }) {}

DayReloader::~DayReloader() {
  {
    const std::lock_guard lock(mutex_);
    is_ending_ = true;
  }
  ending_.notify_one();
  thread_.join();
}

void DayReloader::Run() {
  do {
    try {
      LookOnce();
    } catch (const std::exception& error) {
      if (told_ == error.what()) continue;
      told_ = error.what();
      errors_ << "ferrowindctl: the answers are those of before: " << OneLine(told_) << '\n' << std::flush;
    }
  } while (Wait());
}

void DayReloader::LookOnce() {
  if (watch_ == nullptr || watch_->Look()) is_due_ = true;
  if (!is_due_) return;
  loader_.Reload();
  is_due_ = false;
  told_.clear();
}

bool DayReloader::Wait() {
  std::unique_lock lock(mutex_);
  return !ending_.wait_for(lock, watch_ ? watch_->Pause() : kPauseWithoutWatch,
                           [this] { return is_ending_; });
}

}  // namespace ferrowind::host
