#pragma once

#include <memory>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include <oaidl.h>

#include "ferrowind/adapters/automation/com_pointer.h"
#include "ferrowind/adapters/automation/described_interface.h"

namespace ferrowind::automation {

/// The file that this code is a part of, and what is alive of it. May be used by several threads.
///
/// The type library is in the file's resources; it is loaded for the first object that needs it and dropped
/// with the last object, as are the descriptions of its interfaces.
class Module {
 public:
  /// The one of this file. It is never destroyed: objects may be given back while the process ends.
  [[nodiscard]] static Module& Get();

  ///@{
  /// An object that hosts hold, or a lock of theirs, begins and ends.
  void Hold();
  void LetGo();
  ///@}
  /// How many of them there are: with none the file can be unloaded.
  [[nodiscard]] long Held();

  /// The full path of the file.
  [[nodiscard]] static std::wstring Path();
  /// The type library of the file; a failure when the file has none.
  [[nodiscard]] ComPointer<ITypeLib> TypeLibrary();
  /// What the type library has under that identifier; a failure when there is nothing.
  [[nodiscard]] ComPointer<ITypeInfo> TypeInfo(REFGUID identifier);
  /// The same of an interface, read once for all objects.
  [[nodiscard]] std::shared_ptr<const DescribedInterface> Interface(REFGUID identifier);

 private:
  using Interfaces = std::vector<std::pair<GUID, std::shared_ptr<const DescribedInterface>>>;

  std::mutex mutex_;
  long held_ = 0;
  ComPointer<ITypeLib> library_;
  Interfaces interfaces_;
};

/// Keeps the file loaded as long as it lives; a part of every object that hosts hold.
class ModuleHold {
 public:
  ModuleHold() { Module::Get().Hold(); }
  ~ModuleHold() { Module::Get().LetGo(); }
  ModuleHold(const ModuleHold&) = delete;
  ModuleHold& operator=(const ModuleHold&) = delete;
};

}  // namespace ferrowind::automation
