#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "ferrowind/platform/services/object_factory.h"
#include "ferrowind/platform/services/shared_services.h"

namespace ferrowind::automation {

/// Creates the objects of the host's product family, which are registered under their identifiers. Where no
/// shared services are, ours stand in.
class OutsideObjects : public platform::ObjectFactory {
 public:
  /// Makes shared services of ours; not null, and fails with a `Failure`.
  using MakeServices = std::function<std::shared_ptr<platform::SharedServices>()>;

  explicit OutsideObjects(MakeServices make_own) : make_own_(std::move(make_own)) {}

  [[nodiscard]] std::shared_ptr<platform::OutsideObject> CreateObject(
      const std::string& programmatic_identifier) override;

 private:
  MakeServices make_own_;
};

}  // namespace ferrowind::automation
