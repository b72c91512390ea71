#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>

#include "ferrowind/adapters/headless/call_log.h"
#include "ferrowind/platform/services/object_factory.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::headless {

class HeadlessObjectFactory : public platform::ObjectFactory {
 public:
  /// Makes an object that is not null, or fails.
  using Maker = std::function<std::shared_ptr<platform::OutsideObject>()>;

  /// `log` must outlive the factory.
  explicit HeadlessObjectFactory(CallLog& log) : log_(log) {}

  [[nodiscard]] std::shared_ptr<platform::OutsideObject> CreateObject(
      const std::string& programmatic_identifier) override;

  /// A maker registered before under the identifier is replaced.
  void Register(const std::string& programmatic_identifier, Maker maker);
  void Unregister(const std::string& programmatic_identifier) { makers_.erase(programmatic_identifier); }
  /// From now on making the object fails with that failure.
  void RegisterFailing(const std::string& programmatic_identifier, const platform::Failure& failure);

 private:
  CallLog& log_;
  std::map<std::string, Maker> makers_;
};

}  // namespace ferrowind::headless
