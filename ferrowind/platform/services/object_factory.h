#pragma once

#include <memory>
#include <string>

#include "ferrowind/export.h"

namespace ferrowind::platform {

/// Base of the outside objects that are created by a programmatic identifier.
class FERROWIND_EXPORT OutsideObject {
 public:
  virtual ~OutsideObject() = default;
};

/// Creates the outside objects of the host's product family.
class FERROWIND_EXPORT ObjectFactory {
 public:
  virtual ~ObjectFactory() = default;
  /// A new object, never null. An identifier that nothing is registered under, or an object that cannot be
  /// made, is a failure (429 when unknown) that names the identifier.
  [[nodiscard]] virtual std::shared_ptr<OutsideObject> CreateObject(
      const std::string& programmatic_identifier) = 0;
};

/// The identifier of the dictionary object, a `Dictionary`.
inline constexpr const char* kDictionaryIdentifier = "TessaroDicInProc.DictionaryClass";
/// The identifier of the shared services object, a `SharedServices`.
inline constexpr const char* kSharedServicesIdentifier = "Tessaro.SharedServices";

}  // namespace ferrowind::platform
