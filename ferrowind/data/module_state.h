#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>

#include "ferrowind/data/error_table.h"
#include "ferrowind/platform/platform.h"

namespace ferrowind {

/// A failure that waits to be reported.
struct FailureRecord {
  std::int32_t number = 0;
  std::string description;
};

/// What the component keeps for each thread that it runs on. A new thread starts with a fresh state.
struct ModuleState {
  /// The surroundings that `AttachPlatform` gave; null before that.
  const platform::Platform* platform = nullptr;
  /// Created by the control; null when that failed. Never released by the component.
  std::shared_ptr<platform::Dictionary> dictionary;
  /// Created on first use by `SharedServicesObject`. Never released by the component.
  std::shared_ptr<platform::SharedServices> shared_services;

  /// 0 or 1: only record 0 is ever written.
  std::int32_t pending_failure_count = 0;
  std::array<FailureRecord, 15> pending_failures;
  /// The failure that the handler now running has caught; an empty description is none.
  FailureRecord runtime_failure;

  bool is_error_table_filled = false;
  ErrorTable error_table;
};

/// The state of the calling thread.
[[nodiscard]] ModuleState& Module();

/// Makes `platform` the surroundings of the component on this thread; it must outlive all use of the
/// component there.
void AttachPlatform(const platform::Platform& platform);

/// The thread's surroundings; without any it is the failure 91.
[[nodiscard]] const platform::Platform& AttachedPlatform();

/// The thread's dictionary object; the failure 91 when there is none.
[[nodiscard]] platform::Dictionary& DictionaryObject();

/// Creates the thread's dictionary object when there is none yet. Failure when it cannot be created; the
/// reference then stays empty.
void EnsureDictionaryObject();

/// The thread's shared services object, created on first use. Failure when it cannot be created.
[[nodiscard]] platform::SharedServices& SharedServicesObject();

}  // namespace ferrowind
