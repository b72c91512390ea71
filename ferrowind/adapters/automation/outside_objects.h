#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "ferrowind/platform/services/dictionary.h"
#include "ferrowind/platform/services/object_factory.h"
#include "ferrowind/platform/services/shared_services.h"

namespace ferrowind::automation {

/// Creates the objects of the host's product family, which are registered under their identifiers. Where one
/// is not, ours stands in.
class OutsideObjects : public platform::ObjectFactory {
 public:
  /// Makes shared services of ours; not null, and fails with a `Failure`.
  using MakeServices = std::function<std::shared_ptr<platform::SharedServices>()>;
  /// Makes a dictionary of ours, likewise.
  using MakeDictionary = std::function<std::shared_ptr<platform::Dictionary>()>;

  OutsideObjects(MakeServices make_services, MakeDictionary make_dictionary)
      : make_services_(std::move(make_services)), make_dictionary_(std::move(make_dictionary)) {}

  [[nodiscard]] std::shared_ptr<platform::OutsideObject> CreateObject(
      const std::string& programmatic_identifier) override;

 private:
  MakeServices make_services_;
  MakeDictionary make_dictionary_;
};

}  // namespace ferrowind::automation
