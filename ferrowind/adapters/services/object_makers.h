#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>

#include "ferrowind/export.h"
#include "ferrowind/platform/services/object_factory.h"

namespace ferrowind {

/// Creates outside objects by makers that the host has registered.
class FERROWIND_EXPORT ObjectMakers : public platform::ObjectFactory {
 public:
  /// Makes an object for each call. Null is the failure that the object cannot be created (429); the number
  /// of a `Failure` that it throws is kept.
  using Maker = std::function<std::shared_ptr<platform::OutsideObject>()>;

  /// Identifiers are told apart without regard to letter case; a later maker takes an identifier over. A
  /// maker may fail with a `Failure`.
  void Register(const std::string& programmatic_identifier, Maker maker);

  [[nodiscard]] std::shared_ptr<platform::OutsideObject> CreateObject(
      const std::string& programmatic_identifier) override;

 private:
  /// By the identifier in folded letter case.
  std::map<std::string, Maker> makers_;
};

}  // namespace ferrowind
