#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "ferrowind/data/error_table.h"
#include "ferrowind/platform/platform.h"
#include "ferrowind/platform/values/phrase.h"

namespace ferrowind {

/// A failure that waits to be reported.
struct FailureRecord {
  std::int32_t number = 0;
  std::string description;
};

/// A call of a control that is running. What it runs may destroy the control.
struct ControlCall {
  /// Null once the control is destroyed.
  const void* control;
  /// The call in which this one runs; null for the outermost.
  ControlCall* outer;
};

/// What the component keeps for each thread that it runs on. A new thread starts with a fresh state.
struct ModuleState {
  /// The surroundings that `AttachPlatform` gave; null before that.
  const platform::Platform* platform = nullptr;
  /// The surroundings of the innermost `InSurroundings`; null outside of one.
  const platform::Platform* entered = nullptr;
  /// How many controls the thread has.
  std::int32_t controls = 0;
  /// Null while no call is running that asks whether its control still lives.
  ControlCall* innermost_call = nullptr;
  /// Created by the control; null when that failed. Released only when the host asks for it.
  std::shared_ptr<platform::Dictionary> dictionary;
  /// Created on first use by `SharedServicesObject`. Released only when the host asks for it.
  std::shared_ptr<platform::SharedServices> shared_services;

  /// 0 or 1: only record 0 is ever written.
  std::int32_t pending_failure_count = 0;
  std::array<FailureRecord, 15> pending_failures;
  /// Which text the procedure of the last call refused for its length; nothing when it did not.
  std::optional<platform::Phrase> too_long_text;
  /// The failure that the handler now running has caught; an empty description is none.
  FailureRecord runtime_failure;

  bool is_error_table_filled = false;
  ErrorTable error_table;
};

/// The state of the calling thread.
[[nodiscard]] ModuleState& Module();

/// Makes `platform` the surroundings of what is called on this thread outside of `InSurroundings`; it must
/// outlive all such use.
void AttachPlatform(const platform::Platform& platform);
/// Takes that back, when `platform` is still what was attached last.
void DetachPlatform(const platform::Platform& platform);

/// Makes `platform` the surroundings of the component on this thread for as long as it lives; afterwards
/// those before it hold again. Every call into a control and every handler of a window's events runs in its
/// own, so that controls with different surroundings do not meet, whatever they interrupt.
class InSurroundings {
 public:
  /// `platform` must outlive the object.
  explicit InSurroundings(const platform::Platform& platform);
  ~InSurroundings();
  InSurroundings(const InSurroundings&) = delete;
  InSurroundings& operator=(const InSurroundings&) = delete;

 private:
  const platform::Platform* before_;
};

/// The surroundings of the call that is running; without any it is the failure 91.
[[nodiscard]] const platform::Platform& AttachedPlatform();

/// The thread's dictionary object; the failure 91 when there is none.
[[nodiscard]] platform::Dictionary& DictionaryObject();

/// Creates the thread's dictionary object, in the surroundings of the call, when there is none yet. Failure
/// when it cannot be created; the reference then stays empty.
void EnsureDictionaryObject();

/// The thread's shared services object, created on first use in the surroundings of the call that needs it.
/// Failure when it cannot be created.
[[nodiscard]] platform::SharedServices& SharedServicesObject();

}  // namespace ferrowind
